// The private view: an object's RP context field by field, then the hardware's part.
#include "rp/private.h"

#include "common/failure.h"
#include "rp/views.h"

namespace l2fib
{

std::uint32_t zel_l2fib_print_internal_private(Output &out, const ViewRequest &request)
{
    if (const auto status = refusal(out, __func__, request)) {
        return *status;
    }
    switch (request.objtype) {
    case L2FIB_OBJTYPE_AC: print_ac_private(out, request.show_data); return hand_over(out, 1, request);
    case L2FIB_OBJTYPE_MPLS: print_pw_private(out, request.show_data); return hand_over(out, 1, request);
    case L2FIB_OBJTYPE_NHOP: print_next_hop_private(out, request.show_data); return hand_over(out, 1, request);
    case L2FIB_OBJTYPE_BRIDGE: print_bridge_private(out, request.show_data); return hand_over(out, 2, request);
    default: // some are the hardware's alone
        out.line(1);
        wrong_objtype(out, __func__, request.objtype);
        return hand_over(out, 1, request);
    }
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal_private(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                          uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_print_internal_private(out, {objtype, node_id, direction, view_flags, show_data, size});
}
