// The platform summaries: the RP's tables, then the hardware's part where the print table has a function for it.
#include "common/entry/card.h"
#include "common/entry/hal_table.h"
#include "common/failure.h"
#include "rp/event_statistics.h"
#include "rp/state_summary.h"

namespace l2fib
{

constexpr Literal state_summary = "zel_l2fib_platform_summary_hw_print_internal";
constexpr Literal event_statistics = "zel_l2fib_platform_msg_counter_hw_print_internal";

struct SummaryRequest {
    std::uint32_t node_id;
    std::uint32_t hw_arg;
    std::uint8_t *show_data;
    std::uint64_t size;
};

static std::uint32_t hand_over(Output &out, const SummaryRequest &request, ShowData hardware_part, SummarySlot slot)
{
    fill_hal_table();
    return check_card(out, request.node_id) ? hand_over_summary(out, request.hw_arg, hardware_part, slot) : 0;
}

static std::uint32_t show_state_summary(Output &out, const SummaryRequest &request)
{
    if (request.size == 0) {
        return 0;
    }
    const ShowData data{request.show_data, request.size};
    if (data.is_null()) {
        return null_summary(out, state_summary);
    }
    const auto *summary = data.at<Received<StateSummary>>(0);
    const ShowData hardware_part = data.from(sizeof(StateSummary));
    if (summary == nullptr || hardware_part.size() == 0) {
        return wrong_summary_size(out, state_summary, data.size());
    }
    print_state_summary(out, *summary);
    return hand_over(out, request, hardware_part, &zel_l2fib_hal_print_row::summary_print);
}

static std::uint32_t show_event_statistics(Output &out, const SummaryRequest &request)
{
    if (request.size == 0) {
        return 0;
    }
    const ShowData data{request.show_data, request.size};
    if (data.is_null()) {
        return null_summary(out, event_statistics);
    }
    const auto *counts = data.at<Received<EventCounts>>(0);
    if (counts == nullptr) {
        return wrong_summary_size(out, event_statistics, data.size());
    }
    print_event_counts(out, *counts);

    const ShowData rest = data.from(sizeof(EventCounts));
    const auto *times = rest.at<Received<EventTimes>>(0);
    if (times == nullptr) {
        return wrong_summary_size(out, event_statistics, rest.size());
    }
    print_event_times(out, *times);
    return hand_over(out, request, rest.from(sizeof(EventTimes)), &zel_l2fib_hal_print_row::statistics_print);
}

} // namespace l2fib

uint32_t zel_l2fib_platform_summary_hw_print_internal(uint32_t node_id, uint32_t hw_arg, uint8_t *show_data,
                                                      uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_state_summary(out, {node_id, hw_arg, show_data, size});
}

uint32_t zel_l2fib_platform_msg_counter_hw_print_internal(uint32_t node_id, uint32_t hw_arg, uint8_t *show_data,
                                                          uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_event_statistics(out, {node_id, hw_arg, show_data, size});
}
