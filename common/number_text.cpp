#include "common/number_text.h"

#include "common/characters.h"

#include <array>
#include <bit>

namespace l2fib
{

/// Writes the last `count` hex digits of a number, at least one: all of its digits at once, as the processor's vectors
/// do it. Two at a time from a table, eight digits take a third more instructions.
template <char ten>
static char *write_hex_digits(char *at, unsigned count, std::uint64_t value)
{
    using Numbers = std::uint64_t __attribute__((vector_size(16)));
    using Bytes = std::uint8_t __attribute__((vector_size(16)));
    using Digits = signed char __attribute__((vector_size(16)));
    constexpr signed char nine = 9;
    constexpr signed char zero = '0';
    constexpr signed char from_nine_to_ten = ten - '9' - 1;

    const Numbers first_on_top = {from_big_endian(value << (64 - 4 * count))};
    const auto bytes = reinterpret_cast<Bytes>(first_on_top);
    const Bytes high = bytes >> 4;
    const Bytes low = bytes & 15;
    auto digits = reinterpret_cast<Digits>(
        __builtin_shufflevector(high, low, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
    digits += ((digits > nine) & from_nine_to_ten);
    digits += zero;
    static_assert(sizeof digits <= fill_slack);
    std::memcpy(at, &digits, sizeof digits);
    return at + count;
}

static unsigned bit_width(std::uint64_t value)
{
    return static_cast<unsigned>(std::bit_width(value));
}

static unsigned decimal_digits(std::uint64_t value)
{
    static constexpr auto powers = [] {
        std::array<std::uint64_t, 20> table{}; // the largest number has 20 digits
        std::uint64_t power = 1;
        for (std::uint64_t &entry : table) {
            entry = power;
            power *= 10;
        }
        return table;
    }();
    const std::uint64_t nonzero = value | 1U;                    // 0 has a digit too
    const unsigned at_most = bit_width(nonzero) * 1233U / 4096U; // 1233 / 4096 is the decimal logarithm of 2
    return at_most + (nonzero >= powers[at_most] ? 1 : 0);
}

static unsigned hex_digits(std::uint64_t value)
{
    return (bit_width(value | 1U) + 3) / 4;
}

constexpr std::uint64_t two_groups = std::uint64_t{ThreeDigits::limit} * ThreeDigits::limit;

char *write_long_right_aligned_decimal(char *at, unsigned width, std::uint64_t value)
{
    if (value < two_groups && width >= 2 * ThreeDigits::width) {
        at = fill(at, ' ', width - 2 * ThreeDigits::width);
        return write_three_digits(write_three_columns(at, value / ThreeDigits::limit), value % ThreeDigits::limit);
    }
    const unsigned count = decimal_digits(value);
    return write_decimal(fill(at, ' ', width > count ? width - count : 0), value);
}

/// Six digits, of which the first may be zeros.
static char *write_two_groups(char *at, std::uint64_t value)
{
    return write_three_digits(write_three_digits(at, value / ThreeDigits::limit), value % ThreeDigits::limit);
}

char *write_long_decimal(char *at, std::uint64_t value)
{
    if (value < two_groups) {
        return write_three_digits(write_few_digits(at, value / ThreeDigits::limit), value % ThreeDigits::limit);
    }
    return write_two_groups(write_decimal(at, value / two_groups), value % two_groups);
}

char *write_hex(char *at, std::uint64_t value)
{
    return write_hex_digits<'a'>(at, hex_digits(value), value);
}

char *write_zero_filled_hex(char *at, unsigned width, std::uint64_t value)
{
    return write_hex_digits<'a'>(at, width, value);
}

char *write_padded_number(char *at, Conversion conversion, std::uint64_t value)
{
    const bool is_negative = conversion.kind == Conversion::decimal && (value >> 63U) != 0;
    const std::uint64_t magnitude = is_negative ? 0 - value : value;
    const bool is_hex = conversion.kind == Conversion::hex || conversion.kind == Conversion::upper_hex;
    const unsigned count = is_hex ? hex_digits(magnitude) : decimal_digits(magnitude);
    const unsigned size = count + (is_negative ? 1 : 0);
    const unsigned padding = conversion.width > size ? conversion.width - size : 0;
    const unsigned zeros = conversion.zero_filled && !conversion.left_aligned ? padding : 0;
    const unsigned blanks_before = conversion.left_aligned ? 0 : padding - zeros;

    at = fill(at, ' ', blanks_before);
    if (is_negative) {
        *at++ = '-';
    }
    at = fill(at, '0', zeros);
    if (!is_hex) {
        at = write_decimal(at, magnitude);
    } else if (conversion.kind == Conversion::hex) {
        at = write_hex_digits<'a'>(at, count, magnitude);
    } else {
        at = write_hex_digits<'A'>(at, count, magnitude);
    }
    return fill(at, ' ', padding - zeros - blanks_before);
}

} // namespace l2fib
