// Numbers as text, where there is room for it.
#pragma once

#include "common/format.h"
#include "common/short_text.h"

#include <cstdint>
#include <cstring>

namespace l2fib
{

/// The common ones of write_number: without a width, and filled with zeros up to a width.
char *write_decimal(char *at, std::uint64_t value);
char *write_zero_filled_hex(char *at, unsigned width, std::uint64_t value);

/// Any of them.
char *write_padded_number(char *at, const Conversion &conversion, std::uint64_t value);

/// Writes a number as printf would. The room is the caller's business: the width, or 20
/// characters, and fill_slack behind them. Returns the end.
[[gnu::always_inline]] inline char *write_number(char *at, const Conversion &conversion, std::uint64_t value)
{
    const bool is_decimal = conversion.kind == Conversion::decimal || conversion.kind == Conversion::unsigned_decimal;
    if (is_decimal && conversion.width == 0 && (conversion.kind == Conversion::unsigned_decimal || value >> 63U == 0)) {
        return write_decimal(at, value);
    }
    if (conversion.kind == Conversion::hex && conversion.zero_filled && conversion.width % 2 == 0 &&
        value >> (4U * conversion.width) == 0) {
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

/// The text of a format whose arguments are numbers, cut off where it does not fit.
template <std::size_t capacity, class... Args>
Text<capacity> number_text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
{
    char room[Format<Args...>::max_room + fill_slack];
    char *at = room;
    std::size_t index = 0;
    const auto write_literal = [&]() { at = copy_text(at, format.literal(index), format.conversion(index).literal); };
    const auto write = [&](auto value) {
        write_literal();
        const Conversion &conversion = format.conversion(index++);
        at = write_number(at, conversion, number_bits(conversion.kind, value));
    };
    (write(printf_argument(args)), ...);
    write_literal();

    Text<capacity> text;
    copy_text(text.chars, room, std::min(static_cast<std::size_t>(at - room), capacity - 1));
    return text;
}

} // namespace l2fib
