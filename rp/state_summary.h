// The platform state summary: how many objects of each kind there are.
#pragma once

#include "common/output.h"
#include "common/record.h"
#include "rp/object_kinds.h"

namespace l2fib
{

struct ObjectCounts {
    Bytes<4> unread_0;
    U32 created; //  4
    U32 bound;   //  8
    U32 unbound; // 12
    Bytes<4> unread_16;

    using R = ObjectCounts;
    using Fields = l2fib::Fields<&R::unread_0, &R::created, &R::bound, &R::unbound, &R::unread_16>;
};

/// The hardware's part follows, of at least one byte.
struct StateSummary {
    ObjectCounts kinds[object_kind_rows];

    using R = StateSummary;
    using Fields = l2fib::Fields<&R::kinds>;
};
static_assert(sizeof(StateSummary) == 540);

/// Prints from a copy: the show data stays as received.
void print_state_summary(Output &out, const Received<StateSummary> &received);

} // namespace l2fib
