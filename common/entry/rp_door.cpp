// Chooses the RP's view for a request, and hands over to the hardware's afterwards.
#include "common/entry/rp_door.h"

#include "common/entry/card.h"
#include "common/entry/hal_table.h"
#include "common/failure.h"
#include "common/objtype.h"
#include "common/tlv.h"
#include "rp/detail.h"
#include "rp/private.h"

namespace l2fib
{

constexpr Literal front_door = "zel_l2fib_print_internal";
constexpr Literal detail_view = "zel_l2fib_print_internal_detail";
constexpr Literal private_view = "zel_l2fib_print_internal_private";
constexpr Literal inconsistency_view = "zel_l2fib_print_internal_inconsistent";

/// The RP's views of one object type. Null where the RP has nothing to show.
struct RpObject {
    std::uint32_t objtype;
    const DetailView *detail;
    const PrivateView *private_context;
    std::uint32_t level; ///< the indent level of the hardware's part
};

static constexpr RpObject rp_objects[] = {
    {L2FIB_OBJTYPE_AC, &ac_detail, &ac_private, 1},
    {L2FIB_OBJTYPE_MPLS, &pw_detail, &pw_private, 1},
    {L2FIB_OBJTYPE_NHOP, nullptr, &next_hop_private, 1},
    {L2FIB_OBJTYPE_BRIDGE, &bridge_detail, &bridge_private, 2},
    {L2FIB_OBJTYPE_BRIDGE_PORT, &bridge_port_detail, nullptr, 2},
    {L2FIB_OBJTYPE_BRIDGE_MAC, &bridge_mac_detail, nullptr, 1},
};

static constexpr ByObjtype rp_object{rp_objects};

static std::uint32_t show_detail(Output &out, const RpObject *object, const ViewRequest &request)
{
    if (request.show_data == nullptr) {
        return null_show_data(out, detail_view, request.objtype);
    }
    if (!check_card(out, request.node_id) || request.objtype == L2FIB_OBJTYPE_MCAST_LEAF) {
        return 0; // of a leaf, which is a known object, there is nothing to show
    }
    if (object == nullptr) {
        const Section rp(out, "rp");
        return wrong_objtype(out, detail_view, request.objtype);
    }
    if (object->detail != nullptr) {
        const Section rp(out, "rp");
        object->detail->print(out, request.direction, request.show_data);
    }
    const std::uint32_t status = hand_over(out, object->level, request);
    out.text("\n");
    return status;
}

static void print_not_handled(Output &out, std::uint32_t objtype)
{
    const Section rp(out, "rp");
    out.line(1);
    wrong_objtype(out, private_view, objtype);
}

static std::uint32_t show_private(Output &out, const RpObject *object, const ViewRequest &request)
{
    if (request.show_data == nullptr) {
        return null_show_data(out, private_view, request.objtype);
    }
    if (!check_card(out, request.node_id)) {
        return 0;
    }
    if (object == nullptr || object->private_context == nullptr) { // some objects have a hardware part only
        print_not_handled(out, request.objtype);
        return hand_over(out, 1, request);
    }
    {
        const Section rp(out, "rp");
        object->private_context->print(out, request.show_data);
    }
    return hand_over(out, object->level, request);
}

std::uint32_t show_inconsistency(Output &out, const ViewRequest &request)
{
    if (!card_is_supported(request.node_id)) {
        const Failure failure(out);
        out.text("Unsupported card type: NONE");
        return 0;
    }
    if (request.objtype != L2FIB_OBJTYPE_AC) {
        const Failure failure(out);
        out.line(1, "Platform object %s not handled", objtype_name(request.objtype));
        return 0;
    }
    if (request.show_data == nullptr && request.size != 0) {
        return null_show_data(out, inconsistency_view, request.objtype);
    }
    out.text("\n");
    ShowData report = request.data();
    if (const std::uint32_t status = print_report(out, 1, "rp", report); status != 0) {
        return status;
    }
    ViewRequest rest = request;
    rest.show_data = report.bytes();
    rest.size = report.size();
    return hand_over(out, 1, rest);
}

static std::uint64_t context_end(ViewKind view, const RpObject *object, ShowData data)
{
    if (object == nullptr || data.is_null()) {
        return 0;
    }
    if (view == ViewKind::private_context) {
        return object->private_context == nullptr ? 0 : object->private_context->context_end(data);
    }
    return object->detail == nullptr ? 0 : object->detail->context_end(data);
}

std::uint64_t context_end(ViewKind view, const ViewRequest &request)
{
    return context_end(view, rp_object.find(request.objtype), request.data());
}

std::uint32_t show_whole_context(Output &out, ViewKind view, const ViewRequest &request)
{
    const RpObject *object = rp_object.find(request.objtype);
    const ShowData data = request.data();
    const std::uint64_t end = context_end(view, object, data);
    if (data.size() < end) {
        const Failure failure(out);
        out.text("\n%s: data_size is %zd, expecting at least %zd", front_door, data.size(), end);
        return L2FIB_SHOW_ERR_DATA;
    }
    return view == ViewKind::private_context ? show_private(out, object, request) : show_detail(out, object, request);
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal_detail(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                         uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_detail(out, l2fib::rp_object.find(objtype),
                              {objtype, node_id, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_print_internal_private(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                          uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_private(out, l2fib::rp_object.find(objtype),
                               {objtype, node_id, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_print_internal_inconsistent(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                               uint32_t view_flags, uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_inconsistency(out, {objtype, node_id, direction, view_flags, show_data, size});
}
