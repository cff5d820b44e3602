#include "client/hex_digits.h"

namespace l2fib
{

/// The number of a hex digit; for another character, `is_other` and whatever number. Without branches and with signed
/// comparisons, which are those that vectors have, so that the compiler takes 16 digits at once: nearly all that replay
/// reads are digits.
static std::uint8_t number_of(std::uint8_t character, std::uint8_t &is_other)
{
    constexpr int lowest = -128; // what '0' and 'a' are moved to
    constexpr int to_lower = 'a' - 'A';
    const bool is_digit = static_cast<std::int8_t>(character - '0' + lowest) < lowest + 10;
    const bool is_letter = static_cast<std::int8_t>((character | to_lower) - 'a' + lowest) < lowest + 6;
    is_other |= static_cast<std::uint8_t>(!(is_digit | is_letter));
    return static_cast<std::uint8_t>((character & 0xf) + (is_letter ? 9 : 0));
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
    std::uint8_t is_other = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t high = number_of(digit[2 * i], is_other);
        const std::uint8_t low = number_of(digit[2 * i + 1], is_other);
        at[i] = static_cast<std::uint8_t>(high << 4U | low);
    }
    return is_other == 0;
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
