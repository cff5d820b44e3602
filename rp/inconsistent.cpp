// The inconsistency view: the RP's report on an object, then the hardware's.
#include "common/failure.h"
#include "common/objtype.h"
#include "rp/views.h"

namespace l2fib
{

std::uint32_t zel_l2fib_print_internal_inconsistent(Output &out, const ViewRequest &request)
{
    if (zel_l2fib_get_cardtype(request.node_id) == 0) {
        out.text("Unsupported card type: NONE");
        return 0;
    }
    if (request.objtype != L2FIB_OBJTYPE_AC) {
        out.line(1, "Platform object %s not handled", objtype_name(request.objtype));
        return 0;
    }
    if (request.show_data == nullptr && request.size != 0) {
        return null_show_data(out, __func__, request.objtype);
    }
    out.text("\n");
    ShowData report{request.show_data, request.size};
    const std::uint32_t status = zel_l2fib_print_tlv(out, 1, report);
    if (status != 0) {
        return status;
    }
    ViewRequest rest = request;
    rest.show_data = report.bytes();
    rest.size = report.size();
    return hand_over(out, 1, rest);
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal_inconsistent(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                               uint32_t view_flags, uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_print_internal_inconsistent(out,
                                                        {objtype, node_id, direction, view_flags, show_data, size});
}
