// The kinds of objects that the platform layer keeps counts of.
#pragma once

#include "common/format.h"

namespace l2fib
{

/// The rows of each of its tables. Some are for kinds that no view shows.
constexpr unsigned object_kind_rows = 27;

struct ObjectKind {
    unsigned row;
    Literal name;

    bool in_state_summary; ///< the event statistics show every kind
};

/// In print order.
// clang-format off
constexpr ObjectKind object_kinds[] = {
    {0, "LOCXC AC", true},
    {1, "VPWS  AC", true},
    {2, "VPLS  AC", true},
    {3, "L2TP  AC", false},
    {4, "VPWS  PW", true},
    {5, "VPLS  PW", true},
    {6, "BRIDGE", true},
    {7, "BRIDGEPORT", true},
    {8, "MAC", true},
    {10, "PBB", false},
    {11, "DHCP", false},
    {16, "L2TP", false},
    {17, "L2TP SESSION", false},
};
// clang-format on

} // namespace l2fib
