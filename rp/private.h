// The private view of each RP context, which converts it first.
#pragma once

#include "common/output.h"
#include "rp/context_end.h"

namespace l2fib
{

struct PrivateView {
    std::uint64_t (*context_end)(ShowData data); ///< how much show data it reads
    void (*print)(Output &out, std::uint8_t *show_data);
};

extern const PrivateView ac_private;
extern const PrivateView pw_private;
extern const PrivateView next_hop_private;
extern const PrivateView bridge_private;

} // namespace l2fib
