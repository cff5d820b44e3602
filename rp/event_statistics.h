// The event statistics: what each kind of object has seen, and how long it took.
#pragma once

#include "common/output.h"
#include "common/record.h"
#include "rp/object_kinds.h"

namespace l2fib
{

/// A count, or a time, for each kind of event.
template <class Amount>
struct Events {
    Amount created;
    Amount modified;
    Amount deleted;
    Amount bound;
    Amount unbound;
    Bytes<9 * sizeof(Amount)> unread;

    using R = Events;
    using Fields = l2fib::Fields<&R::created, &R::modified, &R::deleted, &R::bound, &R::unbound, &R::unread>;
};

template <class Amount>
struct EventTable {
    Events<Amount> kinds[object_kind_rows];

    using R = EventTable;
    using Fields = l2fib::Fields<&R::kinds>;
};

using EventCounts = EventTable<U32>;
using EventTimes = EventTable<U64>; ///< nanoseconds
static_assert(sizeof(EventCounts) == 1512 && sizeof(EventTimes) == 3024);

/// Both print from copies: the show data stays as received.
void print_event_counts(Output &out, const Received<EventCounts> &received);
void print_event_times(Output &out, const Received<EventTimes> &received);

} // namespace l2fib
