#include "common/hal_print.h"

#include "common/failure.h"
#include "platform/platform.h"

zel_l2fib_hal_print_row zel_l2fib_hal_print[2] = {};
uint32_t l2fib_mac_entry_type = 0;
uint8_t ipmc_bvi_stat[256] = {};

namespace l2fib
{

/// The row of the supported family. Views hand over only after their own check of the card: the router is not asked again.
constexpr std::size_t supported_card = 1;

bool card_is_supported(Output &out, std::uint32_t node_id)
{
    if (zel_l2fib_get_cardtype(node_id) != 0) {
        return true;
    }
    out.text("\nUnsupported card type NONE: %d", 0);
    return false;
}

std::optional<std::uint32_t> refusal(Output &out, const char *view, const ViewRequest &request)
{
    if (request.show_data == nullptr) {
        return null_show_data(out, view, request.objtype);
    }
    return card_is_supported(out, request.node_id) ? std::nullopt : std::optional<std::uint32_t>{0};
}

std::optional<std::uint32_t> summary_refusal(Output &out, const char *view, const std::uint8_t *show_data,
                                             std::uint64_t size)
{
    if (size == 0) {
        return 0;
    }
    return show_data == nullptr ? std::optional{null_summary(out, view)} : std::nullopt;
}

void fill_hal_print()
{
    for (zel_l2fib_hal_print_row &row : zel_l2fib_hal_print) {
        row = {};
    }
    zel_l2fib_hal_print[supported_card].object_print = ::zel_l2fib_trident_print_internal;
}

std::uint32_t hand_over(Output &out, std::uint32_t level, const ViewRequest &request)
{
    const auto object_print = zel_l2fib_hal_print[supported_card].object_print;
    if (object_print == nullptr) {
        return 0;
    }
    if (object_print == ::zel_l2fib_trident_print_internal) {
        return zel_l2fib_trident_print_internal(out, level, request);
    }
    out.flush(); // it may print by itself
    return object_print(level, request.objtype, request.node_id, request.direction, request.view_flags,
                        request.show_data, request.size);
}

std::uint32_t hand_over_summary(Output &out, std::uint32_t node_id, std::uint32_t hw_arg, ShowData hardware_part,
                                SummarySlot slot)
{
    fill_hal_print();
    if (!card_is_supported(out, node_id)) {
        return 0;
    }
    const auto print = zel_l2fib_hal_print[supported_card].*slot;
    if (print == nullptr) {
        return 0;
    }
    out.flush();
    return print(hw_arg, hardware_part.bytes(), hardware_part.size());
}

} // namespace l2fib

uint32_t zel_l2fib_get_cardtype(uint32_t node_id)
{
    const std::uint32_t code = node_card_type(node_id);
    return (code >= 0x1e1000 && code <= 0x1e1003) || code == 0x1e1005 ? 1 : 0;
}
