#include "rp/state_summary.h"

#include "common/failure.h"
#include "common/hal_print.h"
#include "common/working_copies.h"

namespace l2fib
{

static void print_state_summary(Output &out, const StateSummary &summary)
{
    out.text("\n"
             "                     Platform State Summary\n"
             "--------------------------------------------------------------\n"
             "              Create       Bind       Unbind\n");
    for (const ObjectKind &kind : object_kinds) {
        if (kind.in_state_summary) {
            const ObjectCounts &counts = summary.kinds[kind.row];
            out.text(" %-15s%4d       %4d         %4d\n", kind.name, counts.created, counts.bound, counts.unbound);
        }
    }
    out.text("\n");
}

} // namespace l2fib

uint32_t zel_l2fib_platform_summary_hw_print_internal(uint32_t node_id, uint32_t hw_arg, uint8_t *show_data,
                                                      uint64_t size)
{
    using namespace l2fib;
    Output out;
    if (const auto status = summary_refusal(out, __func__, show_data, size)) {
        return *status;
    }
    const ShowData data{show_data, size};
    const auto *summary = data.at<StateSummary>(0);
    const ShowData hardware_part = data.from(sizeof(StateSummary));
    if (summary == nullptr || hardware_part.size() == 0) {
        return wrong_summary_size(out, __func__, size);
    }
    print_state_summary(out, private_copy(*summary));
    return hand_over_summary(out, node_id, hw_arg, hardware_part, &zel_l2fib_hal_print_row::summary_print);
}
