// The inconsistency view: the RP's report on an object, then the hardware's.
#include "common/failure.h"
#include "common/hal_print.h"
#include "common/objtype.h"

uint32_t zel_l2fib_print_internal_inconsistent(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                               uint32_t view_flags, uint8_t *show_data, uint64_t size)
{
    using namespace l2fib;
    Output out;
    if (zel_l2fib_get_cardtype(node_id) == 0) {
        out.text("Unsupported card type: NONE");
        return 0;
    }
    if (objtype != L2FIB_OBJTYPE_AC) {
        out.line(1, "Platform object %s not handled", objtype_name(objtype));
        return 0;
    }
    if (show_data == nullptr && size != 0) {
        return null_show_data(out, __func__, objtype);
    }
    out.text("\n");
    ViewRequest rest{objtype, node_id, direction, view_flags, show_data, size};
    const std::uint32_t status = zel_l2fib_print_tlv(1, &rest.show_data, &rest.size);
    return status == 0 ? hand_over(1, rest) : status;
}
