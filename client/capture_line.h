// A capture as a line of JSON.
#pragma once

#include "client/capture.h"

#include <string>
#include <string_view>

namespace l2fib
{

/// The capture on a line of a file.
struct CaptureLine {
    Capture capture;
    std::string error; ///< why there is none; fit for a terminal
};
CaptureLine parse_capture(std::string_view line);

} // namespace l2fib
