// Numbers as text, in room that the caller provides.
#pragma once

#include "common/characters.h"
#include "common/format.h"
#include "common/three_digits.h"

#include <cstdint>
#include <cstring>

namespace l2fib
{

// For most numbers: those without a sign, and hex filled with zeros.
char *write_long_decimal(char *at, std::uint64_t value);
char *write_long_right_aligned_decimal(char *at, unsigned width, std::uint64_t value);
char *write_hex(char *at, std::uint64_t value);
char *write_zero_filled_hex(char *at, unsigned width, std::uint64_t value);

inline char *write_decimal(char *at, std::uint64_t value)
{
    return value < ThreeDigits::limit ? write_few_digits(at, value) : write_long_decimal(at, value);
}

inline char *write_right_aligned_decimal(char *at, unsigned width, std::uint64_t value)
{
    if (value < ThreeDigits::limit && width >= ThreeDigits::width) {
        return write_three_columns(fill(at, ' ', width - ThreeDigits::width), value);
    }
    return write_long_right_aligned_decimal(at, width, value);
}

inline char *write_left_aligned_decimal(char *at, unsigned width, std::uint64_t value)
{
    char *end = write_decimal(at, value);
    const auto size = static_cast<std::size_t>(end - at);
    return fill(end, ' ', width > size ? width - size : 0);
}

/// For all other numbers.
char *write_padded_number(char *at, Conversion conversion, std::uint64_t value);

/// Writes a number as printf would. Needs room for the width, or for 20 characters if that is more, and for fill_slack
/// after them. Returns the end.
[[gnu::always_inline]] inline char *write_number(char *at, Conversion conversion, std::uint64_t value)
{
    const bool is_decimal = conversion.kind == Conversion::decimal || conversion.kind == Conversion::unsigned_decimal;
    if (is_decimal && !conversion.zero_filled &&
        (conversion.kind == Conversion::unsigned_decimal || value >> 63U == 0)) {
        if (conversion.width == 0) {
            return write_decimal(at, value);
        }
        return conversion.left_aligned ? write_left_aligned_decimal(at, conversion.width, value)
                                       : write_right_aligned_decimal(at, conversion.width, value);
    }
    if (is_decimal && conversion.is_two_digits() && value < 100) {
        return write_three_digits(at, value, 2);
    }
    if (conversion.kind == Conversion::hex && conversion.width == 0) {
        return write_hex(at, value);
    }
    if (conversion.kind == Conversion::hex && conversion.zero_filled && value >> (4U * conversion.width) == 0) {
        return write_zero_filled_hex(at, conversion.width, value);
    }
    return write_padded_number(at, conversion, value);
}

/// The value of an argument as write_number takes it: sign-extended where it is printed with its sign.
template <class Integer>
constexpr std::uint64_t number_bits(Conversion::Kind kind, Integer value)
{
    // Narrow numbers are printed as printf sees them, as ints.
    using Passed = decltype(+value);
    if (kind == Conversion::decimal) {
        return static_cast<std::uint64_t>(std::int64_t{static_cast<std::make_signed_t<Passed>>(value)});
    }
    return static_cast<std::make_unsigned_t<Passed>>(value);
}

/// A format of numbers whose text is sure to fit into a Text.
template <class... Numbers>
class NumberFormat
{
public:
    consteval NumberFormat(const char *text) : format_(text)
    {
        if (format_.room() + fill_slack > Text::capacity) {
            does_not_fit();
        }
    }

    [[nodiscard]] constexpr const Format<Numbers...> &format() const { return format_; }

private:
    static void does_not_fit() {} // not constexpr: a call when compiling is an error

    Format<Numbers...> format_;
};

template <class... Numbers, std::size_t... indices>
[[gnu::always_inline]] inline Text number_text(const Format<Numbers...> &format,
                                               std::index_sequence<indices...> /*all*/, Numbers... numbers)
{
    Text text;
    char *at = text.chars;
    const auto write = [&](std::size_t index, auto number) __attribute__((always_inline))
    {
        const Conversion conversion = format.conversion(index);
        at = copy(at, format.literal(index), conversion.literal);
        at = write_number(at, conversion, number_bits(conversion.kind, number));
    };
    (write(indices, numbers), ...);
    at = copy(at, format.literal(sizeof...(numbers)), format.conversion(sizeof...(numbers)).literal);
    text.size = static_cast<std::size_t>(at - text.chars);
    return text;
}

template <class... Numbers>
[[gnu::always_inline]] inline Text number_text(const NumberFormat<std::type_identity_t<Numbers>...> &format,
                                               Numbers... numbers)
{
    return number_text<Numbers...>(format.format(), std::index_sequence_for<Numbers...>(), numbers...);
}

} // namespace l2fib
