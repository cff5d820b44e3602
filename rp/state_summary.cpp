#include "rp/state_summary.h"

#include "common/working_copies.h"

namespace l2fib
{

void print_state_summary(Output &out, const Received<StateSummary> &received)
{
    const HostCopy summary(received);
    out.text("\n"
             "                     Platform State Summary\n"
             "--------------------------------------------------------------\n"
             "              Create       Bind       Unbind\n");
    for (const ObjectKind &kind : object_kinds) {
        if (kind.in_state_summary) {
            const ObjectCounts &counts = summary->kinds[kind.row];
            const Element row(out, "kinds");
            note(out, "kind", kind.name);
            out.text(" %-15s%4d       %4d         %4d\n", kind.name, counts.created, counts.bound, counts.unbound);
        }
    }
    out.text("\n");
}

} // namespace l2fib
