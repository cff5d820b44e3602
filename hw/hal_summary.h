// What the hardware abstraction layer (HAL) keeps in shared memory.
#pragma once

#include "common/stored.h"

namespace l2fib
{

/// Follows the NP count, the high-water mark of each NP (U32) and the resource status of each NP (U16).
struct HalSummaryTotals {
    U16 flags;
    U32 load_balance_type;         // 2
    U32 negative_mac_counter_hits; // 6
};
static_assert(sizeof(HalSummaryTotals) == 10);

} // namespace l2fib
