// What the hardware abstraction layer (HAL) keeps in shared memory.
#pragma once

#include "common/record.h"

namespace l2fib
{

/// They follow the NP count, the high-water mark of each NP (BigU32) and the resource status of each NP (BigU16).
struct HalSummaryTotals {
    BigU16 flags;
    BigU32 load_balance_type;         // 2
    BigU32 negative_mac_counter_hits; // 6

    using R = HalSummaryTotals;
    using Fields = l2fib::Fields<&R::flags, &R::load_balance_type, &R::negative_mac_counter_hits>;
};
static_assert(sizeof(HalSummaryTotals) == 10);

} // namespace l2fib
