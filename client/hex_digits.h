// Bytes as pairs of hex digits with nothing between them, both ways.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

/// Appends the bytes of pairs of digits; false, and whatever bytes, for something else.
bool append_hex(std::vector<std::uint8_t> &bytes, std::string_view digits);

/// The bytes of pairs of digits; none when it is something else.
std::optional<std::vector<std::uint8_t>> bytes_of_hex(std::string_view digits);

std::string hex_of_bytes(const std::vector<std::uint8_t> &bytes);

} // namespace l2fib
