// The private view of each RP context, which converts it first.
#pragma once

#include "common/output.h"

#include <cstdint>

namespace l2fib
{

void print_ac_private(Output &out, std::uint8_t *show_data);
void print_pw_private(Output &out, std::uint8_t *show_data);
void print_next_hop_private(Output &out, std::uint8_t *show_data);
void print_bridge_private(Output &out, std::uint8_t *show_data);

} // namespace l2fib
