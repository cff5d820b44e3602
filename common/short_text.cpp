#include "common/short_text.h"

#include <array>

namespace l2fib
{

// In words that overlap: most texts are shorter than a call of memcpy is worth.
char *copy_text(char *to, const char *from, std::size_t size)
{
    const auto both_ends = [=](auto first) {
        auto last = first;
        std::memcpy(&first, from, sizeof first);
        std::memcpy(&last, from + size - sizeof last, sizeof last);
        std::memcpy(to, &first, sizeof first);
        std::memcpy(to + size - sizeof last, &last, sizeof last);
    };
    if (size > 32) {
        std::memcpy(to, from, size);
    } else if (size >= 16) {
        both_ends(std::array<std::uint64_t, 2>{});
    } else if (size >= 8) {
        both_ends(std::uint64_t{});
    } else if (size >= 4) {
        both_ends(std::uint32_t{});
    } else if (size >= 2) {
        both_ends(std::uint16_t{});
    } else if (size == 1) {
        *to = *from;
    }
    return to + size;
}

} // namespace l2fib
