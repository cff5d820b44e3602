// Saved show data.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace l2fib
{

struct Capture {
    std::vector<std::uint8_t> bytes;
    std::string error; ///< why there are no bytes
};

/// Reads a file, or standard input for "-". An empty one is an error.
Capture read_capture(const std::string &path);

} // namespace l2fib
