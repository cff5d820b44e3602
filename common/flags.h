// Tables of flags: which bit prints which text, in print order.
#pragma once

#include "common/literal.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace l2fib
{

struct Flag {
    unsigned number; ///< its bit in what set_flags() returns for the word
    Literal text;
    Literal text_when_clear = nullptr; ///< printed instead when the flag is clear, if there is one
};

constexpr std::uint32_t all_flags = 0xffffffff;
constexpr std::uint32_t all_flags_but(unsigned number)
{
    return ~(std::uint32_t{1} << number);
}

/// The flags that are set in a word, as a bit for each flag number. Of a plain number, these are its own bits.
template <class Word>
constexpr std::uint32_t set_flags(const Word &word)
{
    if constexpr (requires { word.set_flags(); }) {
        return word.set_flags();
    } else {
        return word;
    }
}

constexpr bool is_set(std::uint32_t set, unsigned number)
{
    return (set >> number & 1U) != 0;
}

/// Flags of one word. A table that names a bit twice, or gives it no text, does not compile.
template <std::size_t size>
struct FlagTable {
    consteval FlagTable(const Flag (&flags)[size]) : FlagTable(flags, std::make_index_sequence<size>()) {}

    /// The flags that print a text: those in `set`, and those not in it that have a text_when_clear.
    [[nodiscard]] constexpr std::uint32_t shown(std::uint32_t set) const
    {
        return (set & named_) | (~set & named_when_clear_);
    }

    Flag rows[size];

private:
    template <std::size_t... indices>
    consteval FlagTable(const Flag (&flags)[size], std::index_sequence<indices...> /*all*/) : rows{flags[indices]...}
    {
        for (const Flag &flag : flags) {
            if (flag.number > 31 || is_set(named_, flag.number) || flag.text.size == 0) {
                is_malformed();
            }
            named_ |= std::uint32_t{1} << flag.number;
            named_when_clear_ |= std::uint32_t{flag.text_when_clear.size != 0} << flag.number;
        }
    }

    static void is_malformed() {} // not constexpr: a call when compiling is an error

    std::uint32_t named_ = 0;
    std::uint32_t named_when_clear_ = 0;
};

} // namespace l2fib
