// The platform state summary: how many objects of each kind there are.
#pragma once

#include "common/stored.h"
#include "rp/object_kinds.h"

namespace l2fib
{

struct ObjectCounts {
    U32 unread_0;
    U32 created; //  4
    U32 bound;   //  8
    U32 unbound; // 12
    U32 unread_16;

    void to_host() { l2fib::to_host(created, bound, unbound); }
};

/// The hardware's part follows, at least a byte of it.
struct StateSummary {
    ObjectCounts kinds[object_kind_rows];

    void to_host() { l2fib::to_host(kinds); }
};
static_assert(sizeof(StateSummary) == 540);

} // namespace l2fib
