// The layer-3 paths of a next hop and of a pseudowire.
#pragma once

#include "common/record.h"

namespace l2fib
{

/// Where a path leaves the router.
struct PathDescriptor {
    enum Flag : unsigned { lag = 0, ifhandle_valid = 1, use_sat_lag_hash = 2 };

    FlagByte<one_bit(4), wide(4)> flags;
    U8 sat_lag_hash;
    U16 sfp_or_lagid; // 2
    U32 ifhandle;     // 4

    using R = PathDescriptor;
    using Fields = l2fib::Fields<&R::flags, &R::sat_lag_hash, &R::sfp_or_lagid, &R::ifhandle>;
};
static_assert(sizeof(PathDescriptor) == 8);

/// The state of a pair of paths.
struct PathState {
    enum Flag : unsigned { unresolved = 0, backup_valid = 1 };

    FlagWord<one_bit(2), wide(6)> flags;

    using R = PathState;
    using Fields = l2fib::Fields<&R::flags>;
};
static_assert(sizeof(PathState) == 4);

} // namespace l2fib
