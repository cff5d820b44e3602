// Copies and fills characters, in room that the caller provides.
#pragma once

#include <cstddef>
#include <cstring>

namespace l2fib
{

/// How many bytes fill() may write past the end that it returns.
constexpr std::size_t fill_slack = 16;

/// Copies `size` bytes. Returns the end.
[[gnu::always_inline]] inline char *copy(char *to, const char *from, std::size_t size)
{
    std::memcpy(to, from, size);
    return to + size;
}

/// Fills `size` bytes in blocks, the last of which may reach past the end. Returns the end. One block nearly always does.
[[gnu::always_inline]] inline char *fill(char *to, char with, std::size_t size)
{
    std::memset(to, with, fill_slack);
    for (std::size_t done = fill_slack; done < size; done += fill_slack) [[unlikely]] {
        std::memset(to + done, with, fill_slack);
    }
    return to + size;
}

} // namespace l2fib
