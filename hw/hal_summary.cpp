#include "hw/hal_summary.h"

#include "common/failure.h"
#include "common/show_data_cursor.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr Literal hal_summary = "zel_l2fib_trident_print_summary";

static void print_heading(Output &out)
{
    out.text("\n"
             "                     Platform HAL Shared Memory\n"
             "--------------------------------------------------------------\n");
}

static void print_summary(Output &out, std::span<const BigU32> high_water_marks,
                          std::span<const BigU16> resource_status, const HalSummaryTotals &totals)
{
    out.text("  MAC Counter Utilization High Water Mark:\n");
    for (std::size_t np = 0; np < high_water_marks.size(); ++np) {
        const Element of_np(out, "nps");
        out.text("  NP-%d:%d", static_cast<std::uint32_t>(np),
                 called("mac_counter_high_water_mark", high_water_marks[np]));
    }
    out.text("\n  NP HW Resource Status:\n");
    for (std::size_t np = 0; np < resource_status.size(); ++np) {
        const Element of_np(out, "resource_status");
        out.text("  NP-%d: 0x%04x", static_cast<std::uint32_t>(np), called("status", resource_status[np]));
    }
    out.text("\n  Platform HAL Shared Mem Flags: 0x%04x\n", called("shared_memory_flags", totals.flags));
    out.text("  L2VPN Load Balance Type: 0x%0x\n", totals.load_balance_type);
    out.text("  Total Negative MAC Counter Hit Count: %u\n", totals.negative_mac_counter_hits);
}

} // namespace l2fib

uint32_t zel_l2fib_trident_print_summary(uint32_t /*hw_arg*/, uint8_t *show_data, uint64_t size)
{
    using namespace l2fib;
    Output out;
    const ShowData data{show_data, size};
    if (data.is_null()) {
        null_summary(out, hal_summary);
        return 0;
    }
    const auto *np_count = data.at<const BigU32>(0);
    const std::uint32_t nps = np_count == nullptr ? 0 : np_count->value();
    ShowDataCursor cursor{data.from(sizeof(BigU32))};
    const auto [marks, status, totals] =
        cursor.take_together<const BigU32, const BigU16, const HalSummaryTotals>(nps, nps, 1);

    const Section hardware(out, "hw");
    print_heading(out);
    if (!totals.empty()) {
        print_summary(out, marks, status, totals.front());
    }
    const std::uint64_t record_size = sizeof(BigU32) + cursor.end();
    if (size != record_size) { // a negative number where the show data ends early
        const Failure failure(out);
        out.text("  Show bag corrupted buffer size: %d\n", static_cast<std::uint32_t>(size - record_size));
    }
    return 0;
}
