// Numbers as they are written on the command line and in captures.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace l2fib
{

/// The number that a text has, decimal or hex with 0x: one with zeros in front is decimal, as node ids are printed.
/// None for any other text, and for what 64 bits do not hold.
std::optional<std::uint64_t> whole_number(std::string_view text);

} // namespace l2fib
