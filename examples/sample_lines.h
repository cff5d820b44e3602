// The sample captures as lines of a capture file.
#pragma once

#include "examples/captures.h"

#include <bit>
#include <string>

namespace l2fib
{

/// The line, without its end, as a router's whose line cards store their numbers in this order.
std::string sample_line(const SampleCapture &sample, std::endian stored = std::endian::little);

} // namespace l2fib
