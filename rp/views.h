// The RP's views of an object, on the output of a call that is under way.
#pragma once

#include "common/hal_print.h"

namespace l2fib
{

std::uint32_t zel_l2fib_print_internal_detail(Output &out, const ViewRequest &request);
std::uint32_t zel_l2fib_print_internal_private(Output &out, const ViewRequest &request);
std::uint32_t zel_l2fib_print_internal_inconsistent(Output &out, const ViewRequest &request);

} // namespace l2fib
