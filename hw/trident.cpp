// The hardware side of a request: which view, and which object's handler.
#include "common/failure.h"
#include "common/hal_print.h"
#include "common/list.h"
#include "common/objtype.h"
#include "hw/ac_handler.h"
#include "hw/bridge_handler.h"
#include "hw/mac_handler.h"
#include "hw/pw_handler.h"
#include "hw/resource.h"
#include "platform/platform.h"
#include "rp/ac_context.h"
#include "rp/names.h"

namespace l2fib
{

/// Whether the NPs can hold anything for an AC. One that is unbound is kept in hardware unless its interface is
/// virtual.
static bool ac_is_in_hardware(const AcContext &ac)
{
    if (ac.state == state_unbound) {
        std::uint32_t is_virtual = 0;
        if (ifhandle_is_virtual(ac.ifhandle, &is_virtual) == 0 && is_virtual != 0) {
            return false;
        }
    } else if (ac.state != state_bound) {
        return false;
    }
    return !ac.flags.test(AcContext::remote_ac);
}

static Literal service_of_ac(ShowData data)
{
    const auto *service = data.at<U32>(offsetof(AcShowData, context.service));
    return service_name(service == nullptr ? UINT32_MAX : service->value());
}

constexpr Literal detail_view = "zel_l2fib_trident_print_internal_detail";
constexpr Literal private_view = "zel_l2fib_trident_print_internal_private";

/// Reports an object whose handler failed; the line of some is ended, and of others left open. Returns the status.
static std::uint32_t report_failure(Output &out, std::uint32_t level, const Literal &view, std::uint32_t objtype,
                                    std::uint32_t status, const Literal &line_end = "")
{
    if (status != 0) {
        out.line(level, "%s: print handler failed for objtype %d : %s%s", view, objtype, status_text(status), line_end);
    }
    return status;
}

static std::uint32_t print_ac(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    out.line(level);
    const auto *ac = data.at<AcShowData>(0);
    if (ac != nullptr && !ac_is_in_hardware(ac->context)) {
        return 0;
    }
    const std::uint32_t status = zel_l2fib_ac_print_handler(out, level, direction, data);
    if (status != 0) {
        out.line(level, "%s: print handler failed for service %s objtype %d : %s", detail_view, service_of_ac(data),
                 std::uint32_t{L2FIB_OBJTYPE_AC}, status_text(status));
    }
    return status;
}

static std::uint32_t print_pw(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    if (auto *pw = data.at<PwContext>(0); pw != nullptr) {
        to_host(pw->platform_words, pw->layer_flags);
        if (pw->service == service_vpls) {
            List keys{out, level};
            keys.item("Port Learn Key: %u", pw->port_learn_key);
        }
        if (pw->state != state_bound) {
            return 0;
        }
    }
    const std::uint32_t status = zel_l2fib_pw_print_handler(out, level, direction, data);
    return report_failure(out, level, detail_view, L2FIB_OBJTYPE_MPLS, status);
}

/// A bridge without show data is its handler's to report; one with some begins with the HAL's context.
static std::uint32_t print_bridge(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    const std::uint32_t status = data.is_null() ? zel_l2fib_brg_print_handler(out, level, direction, data)
                                                : print_bridge_with_hal_context(out, level, direction, data);
    return report_failure(out, level + 1, detail_view, L2FIB_OBJTYPE_BRIDGE, status, "\n");
}

static std::uint32_t print_mac(Output &out, std::uint32_t level, ShowData data)
{
    const std::uint32_t status = zel_l2fib_mac_print_handler(out, level, data);
    return report_failure(out, level, detail_view, L2FIB_OBJTYPE_BRIDGE_MAC, status);
}

static std::uint32_t print_received_resources(Output &out, std::uint32_t level, ShowData data)
{
    if (data.is_null()) {
        return zel_l2fib_trident_print_resource(out, level, data, 0);
    }
    const auto *head = data.at<const ResourceShowData>(0);
    if (head == nullptr) {
        return short_data(out, level, data.size(), sizeof *head);
    }
    return zel_l2fib_trident_print_resource(out, level, data.from(sizeof *head), head->length.from_wire());
}

static std::uint32_t print_resources(Output &out, std::uint32_t level, ShowData data)
{
    const std::uint32_t status = print_received_resources(out, level, data);
    return report_failure(out, level, private_view, L2FIB_OBJTYPE_RSRC_MON, status, "\n");
}

static std::uint32_t zel_l2fib_trident_print_internal_detail(Output &out, std::uint32_t level,
                                                             const ViewRequest &request)
{
    const ShowData data{request.show_data, request.size};
    switch (request.objtype) {
    case L2FIB_OBJTYPE_AC: return print_ac(out, level, request.direction, data);
    case L2FIB_OBJTYPE_MPLS: return print_pw(out, level, request.direction, data);
    case L2FIB_OBJTYPE_BRIDGE: return print_bridge(out, level, request.direction, data);
    case L2FIB_OBJTYPE_BRIDGE_MAC: return print_mac(out, level, data);
    case L2FIB_OBJTYPE_NHOP:
    case L2FIB_OBJTYPE_BRIDGE_PORT: return 0; // the RP's context is all there is
    default: out.line(level); return wrong_objtype(out, __func__, request.objtype);
    }
}

static std::uint32_t zel_l2fib_trident_print_internal_private(Output &out, std::uint32_t level,
                                                              const ViewRequest &request)
{
    switch (request.objtype) {
    case L2FIB_OBJTYPE_RSRC_MON: return print_resources(out, level, {request.show_data, request.size});
    case L2FIB_OBJTYPE_AC:
    case L2FIB_OBJTYPE_MPLS:
    case L2FIB_OBJTYPE_BRIDGE: return 0; // the RP's context is all there is
    default: return wrong_objtype(out, __func__, request.objtype);
    }
}

static std::uint32_t zel_l2fib_trident_print_internal_inconsistent(Output &out, std::uint32_t level,
                                                                   const ViewRequest &request)
{
    if (request.objtype != L2FIB_OBJTYPE_AC) {
        out.line(level, "Hardware object %s not handled", objtype_name(request.objtype));
        return 0;
    }
    if (request.show_data == nullptr && request.size != 0) {
        return L2FIB_SHOW_ERR_ARGS;
    }
    ShowData report{request.show_data, request.size};
    return zel_l2fib_print_tlv(out, level + 1, report);
}

std::uint32_t zel_l2fib_trident_print_internal(Output &out, std::uint32_t level, const ViewRequest &request)
{
    if (!card_is_supported(out, request.node_id) || request.show_data == nullptr || request.size == 0) {
        return 0;
    }
    if ((request.view_flags & L2FIB_VIEW_INCONSISTENT) != 0) {
        return zel_l2fib_trident_print_internal_inconsistent(out, level, request);
    }
    if ((request.view_flags & L2FIB_VIEW_PRIVATE) != 0) {
        return zel_l2fib_trident_print_internal_private(out, level, request);
    }
    return (request.view_flags & L2FIB_VIEW_DETAIL) != 0 ? zel_l2fib_trident_print_internal_detail(out, level, request)
                                                         : 0;
}

} // namespace l2fib

uint32_t zel_l2fib_trident_print_internal(uint32_t level, uint32_t objtype, uint32_t node_id, uint32_t direction,
                                          uint32_t view_flags, uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_trident_print_internal(out, level,
                                                   {objtype, node_id, direction, view_flags, show_data, size});
}

// The views by themselves, which ask nobody for a card: the node stays open.

uint32_t zel_l2fib_trident_print_internal_detail(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                 uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                 uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_trident_print_internal_detail(out, level,
                                                          {objtype, 0, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_trident_print_internal_private(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                  uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                  uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_trident_print_internal_private(out, level,
                                                           {objtype, 0, direction, view_flags, show_data, size});
}

uint32_t zel_l2fib_trident_print_internal_inconsistent(uint32_t level, uint32_t objtype, uint32_t /*card_type*/,
                                                       uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                       uint64_t size)
{
    l2fib::Output out;
    return l2fib::zel_l2fib_trident_print_internal_inconsistent(out, level,
                                                                {objtype, 0, direction, view_flags, show_data, size});
}
