// Numbers as text, where there is room for it.
#pragma once

#include "common/format.h"
#include "common/short_text.h"

#include <cstdint>
#include <cstring>

namespace l2fib
{

/// Writes a number as printf would. The room is the caller's business: the width, or 20
/// characters, and fill_slack behind them. Returns the end.
char *write_number(char *at, const Conversion &conversion, std::uint64_t value);

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

/// The text of a format whose arguments are numbers.
template <std::size_t capacity, class... Args>
Text<capacity> number_text(Format<std::type_identity_t<Args>...> format, const Args &...args)
{
    char room[Format<Args...>::max_room + fill_slack];
    char *at = room;
    const char *literal = format.text();
    const Conversion *conversion = format.conversions();
    const auto write_literal = [&] {
        at = copy(at, literal, conversion->literal);
        literal += conversion->literal + conversion->size;
    };
    const auto write = [&](auto value) {
        write_literal();
        at = write_number(at, *conversion, number_bits(conversion->kind, value));
        ++conversion;
    };
    (write(printf_argument(args)), ...);
    write_literal();

    Text<capacity> text;
    std::memcpy(text.chars, room, std::min(static_cast<std::size_t>(at - room), capacity - 1));
    return text;
}

} // namespace l2fib
