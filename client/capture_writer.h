// Writes captures.
#pragma once

#include "client/capture.h"

#include <string>

namespace l2fib
{

/// The line of a capture, without its end.
std::string format_capture(const Capture &capture);

} // namespace l2fib
