// Chooses the hardware's view for a request.
#include "common/entry/hardware_door.h"

#include "common/entry/card.h"
#include "common/failure.h"
#include "common/objtype.h"
#include "common/tlv.h"
#include "hw/objects.h"
#include "hw/view_names.h"

namespace l2fib
{

using HardwareView = std::uint32_t (*)(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

/// For objects that are shown by the RP's context alone.
static std::uint32_t show_nothing(Output & /*out*/, std::uint32_t /*level*/, std::uint32_t /*direction*/,
                                  ShowData /*data*/)
{
    return 0;
}

struct HardwareObject {
    std::uint32_t objtype;
    HardwareView detail;
    HardwareView private_context;
};

/// Null where an object has no such view: a request for it is reported as a wrong object type.
static constexpr HardwareObject hardware_objects[] = {
    {L2FIB_OBJTYPE_AC, show_ac, show_nothing},         {L2FIB_OBJTYPE_MPLS, show_pw, show_nothing},
    {L2FIB_OBJTYPE_NHOP, show_nothing, nullptr},       {L2FIB_OBJTYPE_RSRC_MON, nullptr, show_resources},
    {L2FIB_OBJTYPE_BRIDGE, show_bridge, show_nothing}, {L2FIB_OBJTYPE_BRIDGE_PORT, show_nothing, nullptr},
    {L2FIB_OBJTYPE_BRIDGE_MAC, show_mac, nullptr},
};

static constexpr ByObjtype hardware_object{hardware_objects};

static HardwareView view_of(std::uint32_t objtype, HardwareView HardwareObject::*view)
{
    const HardwareObject *object = hardware_object.find(objtype);
    return object == nullptr ? nullptr : object->*view;
}

static std::uint32_t show_hardware_detail(Output &out, std::uint32_t level, const ViewRequest &request)
{
    const Section hardware(out, "hw");
    const HardwareView view = view_of(request.objtype, &HardwareObject::detail);
    if (view == nullptr) {
        out.line(level);
        return wrong_objtype(out, hardware_detail_view, request.objtype);
    }
    return view(out, level, request.direction, request.data());
}

static std::uint32_t show_hardware_private(Output &out, std::uint32_t level, const ViewRequest &request)
{
    const Section hardware(out, "hw");
    const HardwareView view = view_of(request.objtype, &HardwareObject::private_context);
    if (view == nullptr) {
        return wrong_objtype(out, hardware_private_view, request.objtype);
    }
    return view(out, level, request.direction, request.data());
}

static std::uint32_t show_hardware_inconsistency(Output &out, std::uint32_t level, const ViewRequest &request)
{
    if (request.objtype != L2FIB_OBJTYPE_AC) {
        const Failure failure(out);
        out.line(level, "Hardware object %s not handled", objtype_name(request.objtype));
        return 0;
    }
    if (request.show_data == nullptr && request.size != 0) {
        return L2FIB_SHOW_ERR_ARGS;
    }
    ShowData report = request.data();
    return print_report(out, level + 1, "hw", report);
}

std::uint32_t show_hardware(Output &out, std::uint32_t level, const ViewRequest &request)
{
    if (!check_card(out, request.node_id) || request.show_data == nullptr || request.size == 0) {
        return 0;
    }
    switch (selected_view(request.view_flags)) {
    case ViewKind::inconsistency: return show_hardware_inconsistency(out, level, request);
    case ViewKind::private_context: return show_hardware_private(out, level, request);
    case ViewKind::detail: return show_hardware_detail(out, level, request);
    case ViewKind::none: break;
    }
    return 0;
}

} // namespace l2fib

uint32_t zel_l2fib_trident_print_internal(uint32_t level, uint32_t objtype, uint32_t node_id, uint32_t direction,
                                          uint32_t view_flags, uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_hardware(out, level, {objtype, node_id, direction, view_flags, show_data, size});
}

// The views by themselves. They do not check the card, so they need no node.

uint32_t zel_l2fib_trident_print_internal_detail(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                 uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                 uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_hardware_detail(out, level, {objtype, 0, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_trident_print_internal_private(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                  uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                  uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_hardware_private(out, level, {objtype, 0, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_trident_print_internal_inconsistent(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                       uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                       uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_hardware_inconsistency(out, level, {objtype, 0, direction, view_flags, show_data, size});
}
