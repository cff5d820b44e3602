#include "hw/plain_ac.h"

#include "common/show_data_cursor.h"
#include "hw/np.h"
#include "hw/xid_entry.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// The block has an entry for each NP that is printed, in their order.
static std::uint32_t print_ingress(Output &out, std::uint32_t level, NpRange nps, std::uint32_t xid,
                                   ShowDataCursor &cursor)
{
    for (std::uint32_t np = nps.first; np < nps.end; ++np) {
        auto *entry = cursor.take<Received<XidEntry>>();
        if (entry == nullptr) {
            return L2FIB_SHOW_ERR_DATA;
        }
        out.line(level);
        print_xid_entry(out, level + 1, xid, entry->to_host());
    }
    return 0;
}

/// Each NP is indented one level deeper than the one before it.
static std::uint32_t print_egress(Output &out, std::uint32_t level, NpRange nps, std::uint32_t xid,
                                  ShowDataCursor &cursor)
{
    for (std::uint32_t np = nps.first; np < nps.end; ++np, ++level) {
        auto *entry = cursor.take<Received<XidEntry>>();
        if (entry == nullptr) {
            return L2FIB_SHOW_ERR_DATA;
        }
        out.line(level, "NP%d", np);
        print_xid_entry(out, level + 1, xid, entry->to_host());
    }
    return 0;
}

std::uint32_t print_plain_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac,
                             std::uint32_t np_count, ShowData block)
{
    const NpRange nps = np_range(ac.requested_np, np_count);
    ShowDataCursor cursor{block};
    cursor.take<PlainAcBlock>();
    switch (direction) {
    case L2FIB_INGRESS: return print_ingress(out, level, nps, ac.xid, cursor);
    case L2FIB_EGRESS: return print_egress(out, level, nps, ac.xid, cursor);
    default: return L2FIB_SHOW_ERR_DATA;
    }
}

} // namespace l2fib
