#include "rp/event_statistics.h"

#include "common/failure.h"
#include "common/formatters.h"
#include "common/hal_print.h"
#include "common/working_copies.h"

#include <safe_mem_lib.h>

namespace l2fib
{

/// A private copy that at no time holds anything but zeros and what was received.
template <class Table>
static Table cleared_private_copy(const Table &received)
{
    Table copy;
    memset_s(&copy, sizeof copy, 0, sizeof copy);
    copy_bytes(&copy, &received, sizeof copy);
    copy.to_host();
    return copy;
}

constexpr Literal rule = "--------------------------------------------------------------------\n";

static void print_counts(Output &out, const EventCounts &counts)
{
    out.text("\n"
             "                          Event Statistics Summary\n");
    out.text("%s", rule);
    out.text("             Create      Modify        Bind       Unbind      Delete\n");
    for (const ObjectKind &kind : object_kinds) {
        const Events<U32> &events = counts.kinds[kind.row];
        out.text(" %-13s%5d        %4d       %5d        %5d       %5d\n", kind.name, events.created, events.modified,
                 events.bound, events.unbound, events.deleted);
    }
    out.text("\n");
}

/// In another order than the counts.
static void print_times(Output &out, const EventTimes &times)
{
    out.text("\n"
             "                          Performance Statistics Summary\n");
    out.text("%s", rule);
    out.text("                  Create     Modify     Delete       Bind     Unbind\n");
    for (const ObjectKind &kind : object_kinds) {
        const Events<U64> &events = times.kinds[kind.row];
        out.text(" %-13s", kind.name);
        for (const U64 time : {events.created, events.modified, events.deleted, events.bound, events.unbound}) {
            out.text("%11s", elapsed_text(time));
        }
        out.text("\n");
    }
}

} // namespace l2fib

uint32_t zel_l2fib_platform_msg_counter_hw_print_internal(uint32_t node_id, uint32_t hw_arg, uint8_t *show_data,
                                                          uint64_t size)
{
    using namespace l2fib;
    Output out;
    if (const auto status = summary_refusal(out, __func__, show_data, size)) {
        return *status;
    }
    const ShowData data{show_data, size};
    const auto *counts = data.at<EventCounts>(0);
    if (counts == nullptr) {
        return wrong_summary_size(out, __func__, size);
    }
    print_counts(out, cleared_private_copy(*counts));

    const ShowData rest = data.from(sizeof(EventCounts));
    const auto *times = rest.at<EventTimes>(0);
    if (times == nullptr) {
        return wrong_summary_size(out, __func__, rest.size());
    }
    print_times(out, cleared_private_copy(*times));
    return hand_over_summary(out, node_id, hw_arg, rest.from(sizeof(EventTimes)),
                             &zel_l2fib_hal_print_row::statistics_print);
}
