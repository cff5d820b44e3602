#include "common/entry/hal_table.h"

#include "common/entry/card.h"
#include "common/entry/hardware_door.h"

zel_l2fib_hal_print_row zel_l2fib_hal_print[2] = {};
uint32_t l2fib_mac_entry_type = 0;
uint8_t ipmc_bvi_stat[256] = {};

namespace l2fib
{

void fill_hal_table()
{
    for (zel_l2fib_hal_print_row &row : zel_l2fib_hal_print) {
        row = {};
    }
    zel_l2fib_hal_print[supported_cards].object_print = zel_l2fib_trident_print_internal;
}

std::uint32_t hand_over(Output &out, std::uint32_t level, const ViewRequest &request)
{
    const auto object_print = zel_l2fib_hal_print[supported_cards].object_print;
    if (object_print == nullptr) {
        return 0;
    }
    if (object_print == zel_l2fib_trident_print_internal) {
        return show_hardware(out, level, request); // on the Output of this call
    }
    out.flush(); // a view of the router's own prints to stdio itself
    return object_print(level, request.objtype, request.node_id, request.direction, request.view_flags,
                        request.show_data, request.size);
}

std::uint32_t hand_over_summary(Output &out, std::uint32_t hw_arg, ShowData hardware_part, SummarySlot slot)
{
    const auto print = zel_l2fib_hal_print[supported_cards].*slot;
    if (print == nullptr) {
        return 0;
    }
    out.flush();
    return print(hw_arg, hardware_part.bytes(), hardware_part.size());
}

} // namespace l2fib
