// What the platform's hardware abstraction layer (HAL) keeps of a bridge.
#pragma once

#include "common/output.h"
#include "rp/bridge_context.h"

#include <span>

namespace l2fib
{

/// Prints the HAL's context of a bridge, and of each NP that has members.
void print_bridge_hal_context(Output &out, std::uint32_t level, const BridgeHalContext &bridge,
                              std::span<const BridgeHalNpEntry> nps);

} // namespace l2fib
