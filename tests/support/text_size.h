// How much text a call prints, without keeping any of it; and how much show data can give.
#pragma once

#include <cstdint>
#include <cstdio>
#include <utility>

namespace l2fib
{

/// The most text that any view prints for show data of a size. Seven bytes of a report make a line of 82 characters, a
/// path of a next hop has more than 11 for each byte; the rest is for the NPs of a plain AC, up to 255 of them, each
/// indented deeper than the one before.
constexpr std::uint64_t most_text(std::uint64_t show_data_size)
{
    return 12 * show_data_size + (std::uint64_t{4} << 20U);
}

/// The number of characters that a call leaves on standard output. (glibc lets stdout be another stream for a while.)
template <class Call>
std::uint64_t text_size(const Call &call)
{
    std::uint64_t count = 0;
    const auto write = [](void *counter, const char * /*text*/, std::size_t size) {
        *static_cast<std::uint64_t *>(counter) += size;
        return static_cast<ssize_t>(size);
    };
    std::FILE *counting = fopencookie(&count, "w", {nullptr, write, nullptr, nullptr});
    std::swap(stdout, counting);
    call();
    std::swap(stdout, counting);
    std::fclose(counting);
    return count;
}

} // namespace l2fib
