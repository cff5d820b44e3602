#include "rp/event_statistics.h"

#include "common/formatters.h"
#include "common/working_copies.h"

#include <safe_mem_lib.h>

namespace l2fib
{

/// A copy of a table, in host order. It is cleared before it is filled, so that it never holds what the stack held
/// before.
template <class Table>
class ClearedCopy
{
public:
    explicit ClearedCopy(const Received<Table> &received)
    {
        memset_s(&copy_, sizeof copy_, 0, sizeof copy_);
        copy_bytes(&copy_, &received, sizeof copy_);
        copy_.to_host();
    }

    const Table *operator->() const { return &copy_.converted_before(); }

private:
    Received<Table> copy_;
};

constexpr Literal rule = "--------------------------------------------------------------------\n";

void print_event_counts(Output &out, const Received<EventCounts> &received)
{
    const ClearedCopy counts(received);
    out.text("\n"
             "                          Event Statistics Summary\n");
    out.text("%s", rule);
    out.text("             Create      Modify        Bind       Unbind      Delete\n");
    for (const ObjectKind &kind : object_kinds) {
        const Events<U32> &events = counts->kinds[kind.row];
        out.text(" %-13s%5d        %4d       %5d        %5d       %5d\n", kind.name, events.created, events.modified,
                 events.bound, events.unbound, events.deleted);
    }
    out.text("\n");
}

/// The columns have another order than those of the counts.
void print_event_times(Output &out, const Received<EventTimes> &received)
{
    const ClearedCopy times(received);
    out.text("\n"
             "                          Performance Statistics Summary\n");
    out.text("%s", rule);
    out.text("                  Create     Modify     Delete       Bind     Unbind\n");
    for (const ObjectKind &kind : object_kinds) {
        const Events<U64> &events = times->kinds[kind.row];
        out.text(" %-13s", kind.name);
        for (const U64 time : {events.created, events.modified, events.deleted, events.bound, events.unbound}) {
            out.text("%11s", elapsed_text(time));
        }
        out.text("\n");
    }
}

} // namespace l2fib
