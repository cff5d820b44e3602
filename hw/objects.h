// What the hardware holds for each kind of object. The RP context at the beginning of the show data is in host order:
// the RP's views have converted it. A failure is reported on the screen, and its status returned.
#pragma once

#include "common/output.h"
#include "common/show_data.h"

namespace l2fib
{

std::uint32_t show_ac(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);
std::uint32_t show_pw(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);
std::uint32_t show_bridge(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);
std::uint32_t show_mac(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);
std::uint32_t show_resources(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

/// Reports that an object's part could not be printed, unless the status is 0. Returns the status. `line_end` is "\n"
/// for objects whose report ends its line.
std::uint32_t report_failure(Output &out, std::uint32_t level, const Literal &view, std::uint32_t objtype,
                             std::uint32_t status, const Literal &line_end = "");

} // namespace l2fib
