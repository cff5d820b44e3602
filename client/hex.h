// Bytes as people paste them: plain hex, and the dumps of xxd and hexdump -C.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

enum class HexForm : std::uint8_t {
    any, ///< told by the first line
    plain,
    xxd,
    hexdump, ///< with the characters beside the bytes: hexdump -C
};

struct HexBytes {
    std::vector<std::uint8_t> bytes;
    std::string error; ///< why there are none
};

/// Reads a dump of up to `longest` bytes.
HexBytes read_hex(std::string_view text, HexForm form, std::size_t longest);

/// Appends the bytes of pairs of hex digits with nothing between them; false, and whatever bytes, for something else.
bool append_hex(std::vector<std::uint8_t> &bytes, std::string_view digits);

/// The bytes of pairs of hex digits with nothing between them; none when it is something else.
std::optional<std::vector<std::uint8_t>> bytes_of_hex(std::string_view digits);

std::string hex_of_bytes(const std::vector<std::uint8_t> &bytes);

} // namespace l2fib
