// Copying the short texts that a screen is made of, without a call for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace l2fib
{

/// Bytes that fill() may write behind its end.
constexpr std::size_t fill_slack = 16;

/// Copies a text of any size. Returns the end.
char *copy_text(char *to, const char *from, std::size_t size);

/// Copies `size` bytes: at once where the compiler knows how many. Returns the end.
[[gnu::always_inline]] inline char *copy(char *to, const char *from, std::size_t size)
{
    if (__builtin_constant_p(size)) {
        std::memcpy(to, from, size);
        return to + size;
    }
    return copy_text(to, from, size);
}

/// Fills `size` bytes, and some more behind them. Returns the end.
inline char *fill(char *to, char with, std::size_t size)
{
    for (std::size_t done = 0; done < size; done += fill_slack) {
        std::memset(to + done, with, fill_slack);
    }
    return to + size;
}

} // namespace l2fib
