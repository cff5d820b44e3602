// The detail view: an object's RP context as an operator reads it, then the hardware's part.
#include "rp/detail.h"

#include "common/failure.h"
#include "rp/views.h"

namespace l2fib
{

struct DetailView {
    std::uint32_t objtype;
    void (*print)(Output &out, std::uint32_t direction, std::uint8_t *show_data);
    std::uint32_t hand_over_level;
};

static constexpr DetailView detail_views[] = {
    {L2FIB_OBJTYPE_AC, print_ac_detail, 1},
    {L2FIB_OBJTYPE_MPLS, print_pw_detail, 1},
    {L2FIB_OBJTYPE_NHOP, nullptr, 1},
    {L2FIB_OBJTYPE_BRIDGE, print_bridge_detail, 2},
    {L2FIB_OBJTYPE_BRIDGE_PORT, print_bridge_port_detail, 2},
    {L2FIB_OBJTYPE_BRIDGE_MAC, print_bridge_mac_detail, 1},
};

static const DetailView *detail_view(std::uint32_t objtype)
{
    for (const DetailView &view : detail_views) {
        if (view.objtype == objtype) {
            return &view;
        }
    }
    return nullptr;
}

std::uint32_t zel_l2fib_print_internal_detail(Output &out, const ViewRequest &request)
{
    if (const auto status = refusal(out, __func__, request)) {
        return *status;
    }
    if (request.objtype == L2FIB_OBJTYPE_MCAST_LEAF) {
        return 0; // known, and nothing to show
    }
    const DetailView *view = detail_view(request.objtype);
    if (view == nullptr) {
        return wrong_objtype(out, __func__, request.objtype);
    }
    if (view->print != nullptr) {
        view->print(out, request.direction, request.show_data);
    }
    const std::uint32_t status = hand_over(out, view->hand_over_level, request);
    out.text("\n");
    return status;
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal_detail(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                         uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_print_internal_detail(out, {objtype, node_id, direction, view_flags, show_data, size});
}
