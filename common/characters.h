// Copies and fills characters, in room that the caller provides.
#pragma once

#include <cstddef>
#include <cstring>

namespace l2fib
{

/// What is copied or filled at once.
constexpr std::size_t block_size = 16;

/// How many bytes may be written past the end that a function here returns.
constexpr std::size_t fill_slack = block_size;

/// Copies `size` bytes. Returns the end.
[[gnu::always_inline]] inline char *copy(char *to, const char *from, std::size_t size)
{
    std::memcpy(to, from, size);
    return to + size;
}

/// The same in blocks, the last of which may reach past the ends: for a text that nearly always fits into the first
/// one.
[[gnu::always_inline]] inline char *copy_blocks(char *to, const char *from, std::size_t size)
{
    for (std::size_t done = 0; done < size; done += block_size) {
        std::memcpy(to + done, from + done, block_size);
    }
    return to + size;
}

/// Fills `size` bytes in blocks, the last of which may reach past the end. Returns the end. One block is nearly always
/// enough.
[[gnu::always_inline]] inline char *fill(char *to, char with, std::size_t size)
{
    std::memset(to, with, block_size);
    for (std::size_t done = block_size; done < size; done += block_size) {
        std::memset(to + done, with, block_size);
    }
    return to + size;
}

} // namespace l2fib
