// The names by which messages call the hardware's views.
#pragma once

#include "common/literal.h"

namespace l2fib
{

constexpr Literal hardware_detail_view = "zel_l2fib_trident_print_internal_detail";
constexpr Literal hardware_private_view = "zel_l2fib_trident_print_internal_private";

} // namespace l2fib
