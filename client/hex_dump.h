// Hex as people paste it: plain, and the dumps of xxd, hexdump -C and od -A x -t x1.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

enum class HexForm : std::uint8_t {
    any, ///< told by the first line
    plain,
    xxd,     ///< an offset with a colon, the bytes, their characters
    hexdump, ///< an offset without a colon, bytes one by one, their characters between bars or not at all
};

struct HexBytes {
    std::vector<std::uint8_t> bytes;
    std::string error; ///< where and why there are none
};

/// Reads a dump of up to `longest` bytes.
HexBytes read_hex_dump(std::string_view text, HexForm form, std::size_t longest);

} // namespace l2fib
