#include "common/working_copies.h"

#include <cstdlib>

namespace l2fib
{

void *obtain_bytes(std::size_t size, std::uint8_t fill)
{
    void *bytes = std::malloc(size);
    if (bytes != nullptr) {
        std::memset(bytes, fill, size);
    }
    return bytes;
}

void release_bytes(void *bytes)
{
    std::free(bytes);
}

void copy_bytes(void *to, const void *from, std::size_t size)
{
    std::memcpy(to, from, size);
    copied(to, from, size);
}

} // namespace l2fib
