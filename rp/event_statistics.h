// The event statistics: what each kind of object has seen, and how long it took.
#pragma once

#include "common/stored.h"
#include "rp/object_kinds.h"

namespace l2fib
{

/// A number for each kind of event.
template <class Number>
struct Events {
    Number created;
    Number modified;
    Number deleted;
    Number bound;
    Number unbound;
    Number unread[9];

    void to_host() { l2fib::to_host(created, modified, deleted, bound, unbound); }
};

template <class Number>
struct EventTable {
    Events<Number> kinds[object_kind_rows];

    void to_host() { l2fib::to_host(kinds); }
};

using EventCounts = EventTable<U32>;
using EventTimes = EventTable<U64>; ///< nanoseconds
static_assert(sizeof(EventCounts) == 1512 && sizeof(EventTimes) == 3024);

} // namespace l2fib
