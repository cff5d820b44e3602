// Tables of flags: which bit prints which text, in print order.
#pragma once

#include "common/format.h"
#include "common/stored.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace l2fib
{

struct Flag {
    unsigned number; ///< as the word's test() has it, or the bit of a plain number
    Literal text;
    Literal text_when_clear = nullptr; ///< of a bit that says which of two things holds: one of them is printed
};

constexpr std::uint32_t all_flags = 0xffffffff;
constexpr std::uint32_t all_flags_but(unsigned number)
{
    return ~(std::uint32_t{1} << number);
}

template <class Word>
constexpr bool is_set(const Word &word, unsigned number)
{
    if constexpr (requires { word.test(number); }) {
        return word.test(number);
    } else {
        return (word >> number & 1U) != 0;
    }
}

/// Flags of one word. A table that names a bit twice, or gives it no text, does not compile.
template <std::size_t size>
struct FlagTable {
    consteval FlagTable(const Flag (&flags)[size]) : FlagTable(flags, std::make_index_sequence<size>()) {}

    Flag rows[size];

private:
    template <std::size_t... indices>
    consteval FlagTable(const Flag (&flags)[size], std::index_sequence<indices...> /*all*/) : rows{flags[indices]...}
    {
        std::uint32_t seen = 0;
        for (std::size_t i = 0; i < size; ++i) {
            if (flags[i].number > 31 || (seen >> flags[i].number & 1U) != 0 || flags[i].text.size == 0) {
                is_malformed();
            }
            seen |= std::uint32_t{1} << flags[i].number;
        }
    }

    static void is_malformed() {} // not constexpr: reaching it is the compiler's error
};

} // namespace l2fib
