// The front door: where a show client's request comes in, and where it passes from the RP's side to the hardware's.
#include "common/entry.h"

#include "common/failure.h"
#include "platform/platform.h"
#include "rp/context_end.h"

zel_l2fib_hal_print_row zel_l2fib_hal_print[2] = {};
uint32_t l2fib_mac_entry_type = 0;
uint8_t ipmc_bvi_stat[256] = {};

namespace l2fib
{

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

void fill_hal_print()
{
    constexpr std::size_t supported_card = 1;
    for (zel_l2fib_hal_print_row &row : zel_l2fib_hal_print) {
        row = {};
    }
    zel_l2fib_hal_print[supported_card].object_print = zel_l2fib_trident_print_internal;
}

std::uint32_t hand_over(std::uint32_t level, const ViewRequest &request)
{
    const auto object_print = zel_l2fib_hal_print[zel_l2fib_get_cardtype(request.node_id)].object_print;
    return object_print == nullptr ? 0
                                   : object_print(level, request.objtype, request.node_id, request.direction,
                                                  request.view_flags, request.show_data, request.size);
}

/// Show data that ends inside the RP context stops here; the views trust their callers with that much.
static bool holds_context(Output &out, bool private_view, const ViewRequest &request)
{
    const ShowData data{request.show_data, request.size};
    const std::uint64_t end = data.is_null() ? 0 : context_end(private_view, request.objtype, data);
    if (data.size() >= end) {
        return true;
    }
    out.text("\n%s: data_size is %zd, expecting at least %zd", "zel_l2fib_print_internal", data.size(), end);
    return false;
}

} // namespace l2fib

uint32_t zel_l2fib_get_cardtype(uint32_t node_id)
{
    const std::uint32_t code = node_card_type(node_id);
    return (code >= 0x1e1000 && code <= 0x1e1003) || code == 0x1e1005 ? 1 : 0;
}

uint32_t zel_l2fib_print_internal(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                  uint8_t *show_data, uint64_t size)
{
    using namespace l2fib;
    fill_hal_print();
    Output out;
    if (!card_is_supported(out, node_id)) {
        return 0;
    }
    if ((view_flags & L2FIB_VIEW_INCONSISTENT) != 0) {
        return zel_l2fib_print_internal_inconsistent(objtype, node_id, direction, view_flags, show_data, size);
    }
    const bool private_view = (view_flags & L2FIB_VIEW_PRIVATE) != 0;
    if (!holds_context(out, private_view, {objtype, node_id, direction, view_flags, show_data, size})) {
        return L2FIB_SHOW_ERR_DATA;
    }
    const auto view = private_view ? zel_l2fib_print_internal_private : zel_l2fib_print_internal_detail;
    return view(objtype, node_id, direction, view_flags, show_data, size);
}
