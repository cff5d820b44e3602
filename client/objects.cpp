#include "client/objects.h"

#include "recording/views.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "zel_l2fib/show.h"

#include <algorithm>

namespace l2fib
{

constexpr Library router_library{zel_l2fib_print_internal, zel_l2fib_platform_summary_hw_print_internal,
                                 zel_l2fib_platform_msg_counter_hw_print_internal, zel_l2fib_trident_print_summary};
constexpr Library recording_library{recording_print_internal, recording_platform_summary_hw_print_internal,
                                    recording_platform_msg_counter_hw_print_internal, recording_trident_print_summary};

static std::uint32_t show_object(const Library &library, const Object &object, const ViewArguments &arguments,
                                 std::span<std::uint8_t> show_data)
{
    return library.print_object(object.objtype, arguments.node, arguments.direction, arguments.view_flags,
                                show_data.data(), show_data.size());
}

static std::uint32_t show_state_summary(const Library &library, const Object &, const ViewArguments &arguments,
                                        std::span<std::uint8_t> show_data)
{
    return library.print_state_summary(arguments.node, 0, show_data.data(), show_data.size());
}

static std::uint32_t show_counters(const Library &library, const Object &, const ViewArguments &arguments,
                                   std::span<std::uint8_t> show_data)
{
    return library.print_event_statistics(arguments.node, 0, show_data.data(), show_data.size());
}

static std::uint32_t show_hal_summary(const Library &library, const Object &, const ViewArguments &,
                                      std::span<std::uint8_t> show_data)
{
    return library.print_hal_summary(0, show_data.data(), show_data.size());
}

static constexpr View view_table[] = {
    {"detail", L2FIB_VIEW_DETAIL},
    {"private", L2FIB_VIEW_PRIVATE},
    {"inconsistent", L2FIB_VIEW_INCONSISTENT},
};
static constexpr Direction direction_table[] = {
    {"ingress", L2FIB_INGRESS},
    {"egress", L2FIB_EGRESS},
};

static constexpr const View *detail = &view_table[0];
static constexpr const View *private_view = &view_table[1];

constexpr std::size_t ac_xid = offsetof(AcShowData, context) + offsetof(AcContext, xid);
constexpr std::size_t bridge_xid = offsetof(BridgeShowData, context) + offsetof(BridgeContext, bvi_xid);

static constexpr Object object_table[] = {
    {"ac", "attachment circuit", L2FIB_OBJTYPE_AC, detail, show_object, ac_xid},
    {"pw", "pseudowire", L2FIB_OBJTYPE_MPLS, detail, show_object, offsetof(PwContext, xid)},
    {"bridge", "bridge", L2FIB_OBJTYPE_BRIDGE, detail, show_object, bridge_xid},
    {"bridge-port", "bridge port", L2FIB_OBJTYPE_BRIDGE_PORT, detail, show_object, offsetof(BridgePortContext, pi_xid)},
    {"mac", "MAC address of a bridge", L2FIB_OBJTYPE_BRIDGE_MAC, detail, show_object},
    {"nhop", "next hop", L2FIB_OBJTYPE_NHOP, private_view, show_object},
    {"resources", "use of the hardware tables, and MAC scans", L2FIB_OBJTYPE_RSRC_MON, private_view, show_object},
    {"summary", "numbers of objects on the platform", L2FIB_OBJTYPE_NONE, nullptr, show_state_summary},
    {"counters", "events of the objects on the platform", L2FIB_OBJTYPE_NONE, nullptr, show_counters},
    {"hal-summary", "shared memory of the hardware abstraction layer", L2FIB_OBJTYPE_NONE, nullptr, show_hal_summary},
};

std::optional<std::uint32_t> Object::xid(std::span<const std::uint8_t> show_data) const
{
    BigU32 xid;
    if (xid_offset == 0 || show_data.size() < xid_offset + xid.bytes.size()) {
        return std::nullopt;
    }
    std::copy_n(show_data.data() + xid_offset, xid.bytes.size(), xid.bytes.begin());
    return xid.value();
}

std::span<const Object> objects()
{
    return object_table;
}

std::span<const View> views()
{
    return view_table;
}

std::span<const Direction> directions()
{
    return direction_table;
}

} // namespace l2fib
