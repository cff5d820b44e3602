#include "client/hex_digits.h"

namespace l2fib
{

/// The number of a hex digit; for another character, `all_hex` is 0 from then on. Without branches and with signed
/// comparisons, which are those that vectors have, so that the compiler takes 16 digits at once: nearly all that replay
/// reads are digits.
static std::uint8_t number_of(std::uint8_t character, std::uint8_t &all_hex)
{
    constexpr int lowest = -128; // what '0' and 'a' are moved to
    constexpr int to_lower = 'a' - 'A';
    const bool is_digit = static_cast<std::int8_t>(character - '0' + lowest) < lowest + 10;
    const bool is_letter = static_cast<std::int8_t>((character | to_lower) - 'a' + lowest) < lowest + 6;
    all_hex &= static_cast<std::uint8_t>(is_digit | is_letter);
    return static_cast<std::uint8_t>((character & 0xf) + 9 * is_letter);
}

bool append_hex(std::vector<std::uint8_t> &bytes, std::string_view digits)
{
    if (digits.size() % 2 != 0) {
        return false;
    }
    const std::size_t first = bytes.size();
    const std::size_t count = digits.size() / 2;
    bytes.resize(first + count);
    std::uint8_t *at = bytes.data() + first;
    const auto *digit = reinterpret_cast<const std::uint8_t *>(digits.data());
    std::uint8_t all_hex = 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t high = number_of(digit[2 * i], all_hex);
        const std::uint8_t low = number_of(digit[2 * i + 1], all_hex);
        at[i] = static_cast<std::uint8_t>(high << 4U | low);
    }
    return all_hex != 0;
}

std::optional<std::vector<std::uint8_t>> bytes_of_hex(std::string_view digits)
{
    std::vector<std::uint8_t> bytes;
    return append_hex(bytes, digits) ? std::optional(std::move(bytes)) : std::nullopt;
}

std::string hex_of_bytes(const std::vector<std::uint8_t> &bytes)
{
    constexpr const char *digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text;
}

} // namespace l2fib
