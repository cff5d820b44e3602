// What the NPs hold for an attachment circuit (AC).
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "common/stored.h"

namespace l2fib
{

/// The hardware's part of a plain AC; an XidEntry for each NP that is printed follows.
struct PlainAcBlock {
    Bytes<4> unread_0;
};

/// Prints an AC whose RP context is in host order. The status of the last NP's cross-connect entry,
/// L2FIB_SHOW_ERR_ARGS or L2FIB_SHOW_ERR_DATA.
std::uint32_t zel_l2fib_ac_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

} // namespace l2fib
