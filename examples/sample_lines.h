// The sample captures as lines of a capture file.
#pragma once

#include "examples/captures.h"

#include <string>

namespace l2fib
{

/// The line, without its end.
std::string sample_line(const SampleCapture &sample);

} // namespace l2fib
