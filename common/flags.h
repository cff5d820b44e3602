// Tables of flags: which bit prints which text, in print order.
#pragma once

#include "common/literal.h"

#include <bit>
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
class FlagTable
{
public:
    consteval FlagTable(const Flag (&flags)[size]) : FlagTable(flags, std::make_index_sequence<size>()) {}

    /// The flags that print a text: those in `set`, and those not in it that have a text_when_clear.
    [[nodiscard]] constexpr std::uint32_t shown(std::uint32_t set) const
    {
        return (set & named_) | (~set & named_when_clear_);
    }

    /// Those flags that have a row.
    [[nodiscard]] constexpr std::uint32_t named() const { return named_; }

    /// All rows, in print order.
    [[nodiscard]] constexpr const Flag (&rows() const)[size] { return rows_; }

    /// Calls a function for each row whose flag is in `wanted`, in print order.
    template <class Visit>
    void for_each(std::uint32_t wanted, const Visit &visit) const
    {
        for (unsigned i = 0; i < stretches_; ++i) {
            const Stretch &stretch = stretch_[i];
            for (std::uint32_t left = wanted & stretch.flags; left != 0;) {
                const int number = stretch.falls ? 31 - std::countl_zero(left) : std::countr_zero(left);
                left &= ~(std::uint32_t{1} << number);
                visit(rows_[row_of_[number]]);
            }
        }
    }

private:
    /// Neighbouring rows whose numbers rise, or fall. A word has few flags set, which are found by its bits at once.
    struct Stretch {
        std::uint32_t flags;
        bool falls;
    };

    template <std::size_t... indices>
    consteval FlagTable(const Flag (&flags)[size], std::index_sequence<indices...> /*all*/) : rows_{flags[indices]...}
    {
        for (const Flag &flag : flags) {
            if (flag.number > 31 || is_set(named_, flag.number) || flag.text.size == 0) {
                is_malformed();
            }
            named_ |= std::uint32_t{1} << flag.number;
            named_when_clear_ |= std::uint32_t{flag.text_when_clear.size != 0} << flag.number;
        }
        for (std::size_t row = 0; row < size; ++row) {
            const unsigned number = flags[row].number;
            row_of_[number] = static_cast<std::uint8_t>(row);
            const bool falls = row != 0 && number < flags[row - 1].number;
            const bool is_second = stretches_ != 0 && std::popcount(stretch_[stretches_ - 1].flags) == 1;
            if (row == 0 || (!is_second && falls != stretch_[stretches_ - 1].falls)) {
                stretch_[stretches_++] = {};
            }
            Stretch &stretch = stretch_[stretches_ - 1];
            stretch.falls = is_second && row != 0 ? falls : stretch.falls;
            stretch.flags |= std::uint32_t{1} << number;
        }
    }

    static void is_malformed() {} // not constexpr: a call when compiling is an error

    Flag rows_[size];
    std::uint32_t named_ = 0;
    std::uint32_t named_when_clear_ = 0;
    std::uint8_t row_of_[32] = {}; // by number
    unsigned stretches_ = 0;
    Stretch stretch_[size] = {};
};

} // namespace l2fib
