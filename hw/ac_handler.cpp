#include "hw/ac_handler.h"

#include "common/failure.h"
#include "common/show_data_cursor.h"
#include "hw/np.h"
#include "hw/vpls_ac.h"
#include "rp/names.h"

namespace l2fib
{

/// One entry stands in the block for each NP that is printed, in their order.
static std::uint32_t print_ingress(Output &out, std::uint32_t level, NpRange nps, std::uint32_t xid,
                                   ShowDataCursor &cursor, const char *handler)
{
    std::uint32_t status = 0;
    for (std::uint32_t np = nps.first; np < nps.end; ++np) {
        XidEntry *entry = cursor.take<XidEntry>();
        if (entry == nullptr) {
            return L2FIB_SHOW_ERR_DATA;
        }
        out.line(level);
        status = zel_l2fib_print_xid_entry(out, level + 1, xid, entry);
        report_xid_failure(out, level + 1, handler, xid, status);
    }
    return status;
}

/// Each NP stands one level deeper than the one before it, and only the last one's failure is reported.
static std::uint32_t print_egress(Output &out, std::uint32_t level, NpRange nps, std::uint32_t xid,
                                  ShowDataCursor &cursor, const char *handler)
{
    std::uint32_t status = 0;
    for (std::uint32_t np = nps.first; np < nps.end; ++np, ++level) {
        XidEntry *entry = cursor.take<XidEntry>();
        if (entry == nullptr) {
            return L2FIB_SHOW_ERR_DATA;
        }
        out.line(level, "NP%d", np);
        status = zel_l2fib_print_xid_entry(out, level + 1, xid, entry);
    }
    report_xid_failure(out, level, handler, xid, status);
    return status;
}

static std::uint32_t print_plain_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcShowData &ac,
                                    ShowData block, const char *handler)
{
    const NpRange nps = np_range(ac.context.requested_np, static_cast<std::uint8_t>(ac.np_count.from_wire()));
    ShowDataCursor cursor{block};
    cursor.take<PlainAcBlock>();
    switch (direction) {
    case L2FIB_INGRESS: return print_ingress(out, level, nps, ac.context.xid, cursor, handler);
    case L2FIB_EGRESS: return print_egress(out, level, nps, ac.context.xid, cursor, handler);
    default: return L2FIB_SHOW_ERR_DATA;
    }
}

std::uint32_t zel_l2fib_ac_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, __func__);
    }
    const auto *ac = data.at<AcShowData>(0);
    if (ac == nullptr) {
        return L2FIB_SHOW_ERR_DATA;
    }
    const ShowData block = data.from(ac->hardware_offset());
    if (block.is_null()) {
        return L2FIB_SHOW_ERR_DATA;
    }
    if (ac->context.flags.test(AcContext::no_lag_local_members) || ac->context.flags.test(AcContext::remote_ac)) {
        return 0;
    }
    return ac->context.service == service_vpls ? print_vpls_ac(out, level, direction, ac->context, block)
                                               : print_plain_ac(out, level, direction, *ac, block, __func__);
}

} // namespace l2fib
