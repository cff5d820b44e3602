#include "client/whole_number.h"

#include <charconv>

namespace l2fib
{

std::optional<std::uint64_t> whole_number(std::string_view text)
{
    const bool is_hex = text.starts_with("0x");
    text.remove_prefix(is_hex ? 2 : 0);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, is_hex ? 16 : 10);
    const bool is_whole = error == std::errc{} && end == text.data() + text.size();
    return is_whole ? std::optional(number) : std::nullopt;
}

} // namespace l2fib
