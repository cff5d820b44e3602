#include "common/number_text.h"

#include "common/characters.h"

#include <array>
#include <bit>

namespace l2fib
{

using DigitPairs = std::array<char, 512>;

template <unsigned base>
static constexpr DigitPairs digit_pairs(const char *digits)
{
    DigitPairs pairs{};
    for (std::size_t value = 0; value < std::size_t{base} * base; ++value) {
        pairs[2 * value] = digits[value / base];
        pairs[2 * value + 1] = digits[value % base];
    }
    return pairs;
}

static constexpr DigitPairs decimal_pairs = digit_pairs<10>("0123456789");
static constexpr DigitPairs hex_pairs = digit_pairs<16>("0123456789abcdef");
static constexpr DigitPairs upper_hex_pairs = digit_pairs<16>("0123456789ABCDEF");

/// Writes `count` digits that end at `end`, two at a time.
template <unsigned base>
static void write_digits(char *end, unsigned count, std::uint64_t value, const DigitPairs &pairs)
{
    constexpr unsigned pair = base * base;
    for (; count >= 2; count -= 2, value /= pair) {
        end -= 2;
        std::memcpy(end, pairs.data() + 2 * (value % pair), 2);
    }
    if (count != 0) {
        *--end = pairs[static_cast<std::size_t>(2 * value + 1)];
    }
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
    at = fill(at, ' ', width > count ? width - count : 0) + count;
    write_digits<10>(at, count, value, decimal_pairs);
    return at;
}

char *write_left_aligned_decimal(char *at, unsigned width, std::uint64_t value)
{
    char *end = write_decimal(at, value);
    const auto size = static_cast<unsigned>(end - at);
    return fill(end, ' ', width > size ? width - size : 0);
}

char *write_long_decimal(char *at, std::uint64_t value)
{
    if (value < two_groups) {
        return write_three_digits(write_few_digits(at, value / ThreeDigits::limit), value % ThreeDigits::limit);
    }
    const unsigned count = decimal_digits(value);
    write_digits<10>(at + count, count, value, decimal_pairs);
    return at + count;
}

char *write_hex(char *at, std::uint64_t value)
{
    return write_zero_filled_hex(at, hex_digits(value), value);
}

/// The same for a width that the compiler knows.
template <unsigned width>
static char *write_zero_filled_hex(char *at, std::uint64_t value)
{
    for (unsigned done = 0; done < width; done += 2) {
        const std::uint64_t pair = value >> (4 * (width - 2 - done)) & 0xffU;
        std::memcpy(at + done, hex_pairs.data() + 2 * pair, 2);
    }
    return at + width;
}

char *write_zero_filled_hex(char *at, unsigned width, std::uint64_t value)
{
    if (width == 8) { // nearly all of them
        return write_zero_filled_hex<8>(at, value);
    }
    if (width == 4) {
        return write_zero_filled_hex<4>(at, value);
    }
    write_digits<16>(at + width, width, value, hex_pairs);
    return at + width;
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
    at = fill(at, '0', zeros) + count;
    if (is_hex) {
        write_digits<16>(at, count, magnitude, conversion.kind == Conversion::hex ? hex_pairs : upper_hex_pairs);
    } else {
        write_digits<10>(at, count, magnitude, decimal_pairs);
    }
    return fill(at, ' ', padding - zeros - blanks_before);
}

} // namespace l2fib
