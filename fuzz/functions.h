// The numbers that the targets' inputs have for the functions they call.
#pragma once

#include <cstdint>

namespace l2fib
{

enum SummaryFunction : std::uint8_t { state_summary, event_statistics, hal_summary, resources, summary_functions };

enum ObjectFunction : std::uint8_t { by_view_flags, detail, private_view, inconsistent, object_functions };

} // namespace l2fib
