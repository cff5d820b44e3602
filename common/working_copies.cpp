#include "common/working_copies.h"

namespace l2fib
{

void copy_bytes(void *to, const void *from, std::size_t size)
{
    std::memcpy(to, from, size);
}

} // namespace l2fib
