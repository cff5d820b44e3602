// What the NPs hold for an attachment circuit (AC).
#include "common/failure.h"
#include "hw/objects.h"
#include "hw/plain_ac.h"
#include "hw/view_names.h"
#include "hw/vpls_ac.h"
#include "platform/platform.h"
#include "rp/names.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr Literal ac_handler = "zel_l2fib_ac_print_handler";

/// Whether the NPs can hold anything for an AC. One that is unbound is kept in hardware unless its interface is
/// virtual.
static bool is_in_hardware(const AcContext &ac)
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

static std::uint32_t print_ac(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, ac_handler);
    }
    const auto *parts = data.at<AcShowData>(0);
    if (parts == nullptr) {
        return L2FIB_SHOW_ERR_DATA;
    }
    const ShowData block = data.from(parts->hardware_offset());
    if (block.is_null()) {
        return L2FIB_SHOW_ERR_DATA;
    }
    const AcContext &ac = parts->context.converted_before();
    if (ac.flags.test(AcContext::no_lag_local_members)) {
        return 0;
    }
    return ac.service == service_vpls ? print_vpls_ac(out, level, direction, ac, block)
                                      : print_plain_ac(out, level, direction, ac, parts->np_count.low_byte(), block);
}

/// The name of the service, as far as the show data reaches.
static Literal service_of(ShowData data)
{
    const std::size_t offset = offsetof(AcShowData, context) + offsetof(AcContext, service);
    const auto *service = data.at<Bytes<sizeof(AcContext::service)>>(offset);
    return service_name(service == nullptr ? UINT32_MAX : std::bit_cast<U32>(*service).value());
}

std::uint32_t show_ac(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    out.line(level);
    const auto *parts = data.at<AcShowData>(0);
    if (parts != nullptr && !is_in_hardware(parts->context.converted_before())) {
        return 0;
    }
    const std::uint32_t status = print_ac(out, level, direction, data);
    if (status != 0) {
        const Failure failure(out);
        out.line(level, "%s: print handler failed for service %s objtype %d : %s", hardware_detail_view,
                 service_of(data), std::uint32_t{L2FIB_OBJTYPE_AC}, status_text(status));
    }
    return status;
}

} // namespace l2fib
