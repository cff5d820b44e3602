// Where a bridge port floods: to which slots of the racks, and to which NPs.
#pragma once

#include "common/output.h"
#include "rp/bridge_port_context.h"

namespace l2fib
{

/// Prints the slot and NP masks of a bridge port whose record is in host order.
void print_flooding(Output &out, std::uint32_t level, const BridgePortContext &port);

} // namespace l2fib
