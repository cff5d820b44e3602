// Bytes of an open file, to be read at their place.
#pragma once

#include <cstddef>
#include <sys/types.h>

namespace l2fib
{

struct FilePart {
    int descriptor; ///< -1 when there are none
    off_t offset;
    std::size_t size;
};

} // namespace l2fib
