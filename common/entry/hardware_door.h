// The hardware's views of an object, for a call that has its Output already.
#pragma once

#include "common/entry/view_request.h"
#include "common/output.h"

namespace l2fib
{

/// What zel_l2fib_trident_print_internal does: checks the card, and shows the view that the flags select.
std::uint32_t show_hardware(Output &out, std::uint32_t level, const ViewRequest &request);

} // namespace l2fib
