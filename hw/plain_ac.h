// An AC outside of bridge domains: its cross-connect entry on each NP.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "rp/ac_context.h"

namespace l2fib
{

/// The hardware's part; an XidEntry for each NP that is printed follows.
struct PlainAcBlock {
    Bytes<4> unread_0;

    using R = PlainAcBlock;
    using Fields = l2fib::Fields<&R::unread_0>;
};

/// Prints what the NPs hold. `np_count` is the AC's own NP count, `block` the hardware's part of the show data.
/// Statuses: 0, L2FIB_SHOW_ERR_DATA.
std::uint32_t print_plain_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac,
                             std::uint32_t np_count, ShowData block);

} // namespace l2fib
