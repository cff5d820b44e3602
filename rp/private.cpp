// The private view: an object's RP context field by field, then the hardware's part.
#include "rp/private.h"

#include "common/failure.h"
#include "common/hal_print.h"

uint32_t zel_l2fib_print_internal_private(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                          uint8_t *show_data, uint64_t size)
{
    using namespace l2fib;
    Output out;
    const ViewRequest request{objtype, node_id, direction, view_flags, show_data, size};
    if (const auto status = refusal(out, __func__, request)) {
        return *status;
    }
    switch (objtype) {
    case L2FIB_OBJTYPE_AC: print_ac_private(out, show_data); return hand_over(1, request);
    case L2FIB_OBJTYPE_MPLS: print_pw_private(out, show_data); return hand_over(1, request);
    case L2FIB_OBJTYPE_NHOP: print_next_hop_private(out, show_data); return hand_over(1, request);
    case L2FIB_OBJTYPE_BRIDGE: print_bridge_private(out, show_data); return hand_over(2, request);
    default: // some are the hardware's alone
        out.line(1);
        wrong_objtype(out, __func__, objtype);
        return hand_over(1, request);
    }
}
