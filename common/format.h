// printf formats that the compiler reads: each is compared with its arguments, and taken apart for the output unit,
// when the code is compiled. (Formats that are taken apart at run time take 1.5 to 7 times the instructions.)
//
// The arguments may be numbers, C strings, fields of the show data, and texts that a formatter made.
#pragma once

#include "common/literal.h"
#include "common/text.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace l2fib
{

template <class Integer>
requires std::integral<Integer>
constexpr Integer printf_argument(Integer value)
{
    return value;
}
constexpr std::string_view printf_argument(const char *text)
{
    return text;
}
constexpr std::string_view printf_argument(std::string_view text)
{
    return text;
}
constexpr ShortText printf_argument(const Literal &text)
{
    return {text.chars, text.size};
}
template <class Field>
requires std::integral<decltype(std::declval<const Field &>().value())>
constexpr auto printf_argument(const Field &field)
{
    return field.value();
}
inline RoomyText printf_argument(const Text &text)
{
    return text.view();
}

/// Whether printf_argument() gave a text.
template <class Passed>
constexpr bool is_text_argument = std::is_convertible_v<Passed, std::string_view>;

/// How one argument is printed, and where the text before it is.
struct Conversion {
    enum Kind : std::uint8_t { none, decimal, unsigned_decimal, hex, upper_hex, string };

    static constexpr std::size_t longest_width = longest_short_text;

    std::uint16_t at = 0;      ///< where in the format the text before it begins
    std::uint16_t literal = 0; ///< characters of that text
    std::uint8_t width = 0;
    Kind kind = none; ///< none after the last argument
    bool left_aligned = false;
    bool zero_filled = false;

    /// As the parts of a time are printed.
    [[nodiscard]] constexpr bool is_two_digits() const { return width == 2 && zero_filled && !left_aligned; }
};

template <class... Args>
class Format
{
public:
    // Implicit, so that callers write a plain string.
    consteval Format(const char *text) : text_(text)
    {
        const std::string_view whole = text;
        std::string_view rest = whole;
        for (std::size_t argument = 0; argument <= sizeof...(Args); ++argument) {
            Conversion &conversion = conversions_[argument];
            conversion.at = static_cast<std::uint16_t>(whole.size() - rest.size());
            conversion.literal = take_literal(rest);
            if (argument < sizeof...(Args)) {
                take_conversion(rest, conversion, is_text[argument], is_long[argument]);
            }
            room_ += conversion.literal + std::max<std::size_t>(conversion.width, longest[argument]);
        }
        if (!rest.empty() || room_ > max_room) {
            does_not_fit_its_arguments();
        }
    }

    /// The conversion of an argument. There is one more, for the text after the last argument.
    [[nodiscard, gnu::always_inline]] constexpr Conversion conversion(std::size_t argument) const
    {
        return conversions_[argument];
    }
    [[nodiscard, gnu::always_inline]] constexpr const char *literal(std::size_t argument) const
    {
        return text_ + conversions_[argument].at;
    }
    [[nodiscard]] constexpr const char *text() const { return text_; }

    /// The most characters that it prints when no string is longer than Conversion::longest_width.
    [[nodiscard, gnu::always_inline]] constexpr std::size_t room() const { return room_; }
    static constexpr std::size_t max_room = 1024;

private:
    static void does_not_fit_its_arguments() {} // not constexpr: a call when compiling is an error

    template <class Arg>
    using Passed = decltype(printf_argument(std::declval<const Arg &>()));
    static constexpr bool is_text[sizeof...(Args) + 1] = {is_text_argument<Passed<Args>>..., false};
    static constexpr std::size_t longest[sizeof...(Args) + 1] = {(is_text_argument<Passed<Args>>
                                                                      ? Conversion::longest_width
                                                                  : sizeof(Passed<Args>) == 1 ? 4
                                                                  : sizeof(Passed<Args>) == 2 ? 6
                                                                  : sizeof(Passed<Args>) == 4 ? 11
                                                                                              : 20)...,
                                                                 0};
    static constexpr bool is_long[sizeof...(Args) + 1] = {(sizeof(Passed<Args>) == sizeof(std::uint64_t))..., false};

    static constexpr std::uint16_t take_literal(std::string_view &rest)
    {
        const std::size_t size = std::min(rest.find('%'), rest.size());
        rest.remove_prefix(size);
        return static_cast<std::uint16_t>(size);
    }

    static constexpr void take_conversion(std::string_view &rest, Conversion &conversion, bool wants_text,
                                          bool wants_long)
    {
        if (!take(rest, '%')) {
            does_not_fit_its_arguments();
        }
        conversion.left_aligned = take(rest, '-');
        conversion.zero_filled = take(rest, '0');
        for (; !rest.empty() && rest.front() >= '0' && rest.front() <= '9'; rest.remove_prefix(1)) {
            conversion.width = static_cast<std::uint8_t>(10 * conversion.width + (rest.front() - '0'));
        }
        const bool is_said_long = take(rest, 'l') || take(rest, 'z');
        conversion.kind = take(rest, 'd')   ? Conversion::decimal
                          : take(rest, 'u') ? Conversion::unsigned_decimal
                          : take(rest, 'x') ? Conversion::hex
                          : take(rest, 'X') ? Conversion::upper_hex
                          : take(rest, 's') ? Conversion::string
                                            : Conversion::none;
        if (conversion.kind == Conversion::none || conversion.width > Conversion::longest_width ||
            wants_text != (conversion.kind == Conversion::string) || is_said_long != (wants_long && !wants_text)) {
            does_not_fit_its_arguments();
        }
    }

    static constexpr bool take(std::string_view &rest, char c)
    {
        const bool is_next = rest.starts_with(c);
        rest.remove_prefix(is_next ? 1 : 0);
        return is_next;
    }

    const char *text_;
    std::size_t room_ = 0;
    Conversion conversions_[sizeof...(Args) + 1];
};

} // namespace l2fib
