// Files that people take for show data or captures.
//
// Show data is binary and may begin with anything, so what is said of a file here is certain: text only where all of it
// is text.
#pragma once

#include <string>
#include <string_view>

namespace l2fib
{

/// What a file is that cannot be show data, and what to do with it; empty for one that may be.
std::string other_than_show_data(std::string_view content);

/// The same of a file whose bytes were to be a hex dump, and are none.
std::string other_than_hex_dump(std::string_view content);

/// The same of a file without captures, by the first line that is none.
std::string other_than_captures(std::string_view line);

} // namespace l2fib
