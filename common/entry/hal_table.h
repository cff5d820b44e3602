// The table through which the RP's views hand over to the hardware's.
#pragma once

#include "common/entry/view_request.h"
#include "common/output.h"

namespace l2fib
{

/// Clears zel_l2fib_hal_print and enters the views of the supported cards.
void fill_hal_table();

/// Prints the hardware's part of an object after the RP's, or nothing when the table has no view for it. The caller has
/// checked the card, so the router is not asked again.
std::uint32_t hand_over(Output &out, std::uint32_t level, const ViewRequest &request);

/// The slot of a platform summary.
using SummarySlot = uint32_t (*zel_l2fib_hal_print_row::*)(uint32_t hw_arg, uint8_t *show_data, uint64_t size);

/// Prints the hardware's part of a platform summary after the RP's, in the same way.
std::uint32_t hand_over_summary(Output &out, std::uint32_t hw_arg, ShowData hardware_part, SummarySlot slot);

} // namespace l2fib
