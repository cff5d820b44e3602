#include "hw/vpls_ac.h"

#include "common/failure.h"
#include "common/show_data_cursor.h"
#include "hw/flooding.h"
#include "hw/np.h"
#include "zel_l2fib/show.h"

#include <iterator>

namespace l2fib
{

/// The record of an NP, null when it has none. A single record serves every NP.
template <class Record>
static Record *record_of(std::span<Record> records, std::uint32_t np)
{
    if (records.size() == 1) {
        return &records.front();
    }
    return np < records.size() ? &records[np] : nullptr;
}

static std::uint32_t print_np_without_record(Output &out, std::uint32_t level, std::uint32_t np)
{
    out.line(level, "NP%d", np);
    const Failure failure(out);
    out.line(level + 1, "Invalid NP ID");
    return 0;
}

static void print_np(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac, std::uint32_t np,
                     VplsNpRecord &record, bool bports_present)
{
    out.line(level, "NP%d", np);
    show_uidb_entry(out, level + 1, direction, ac.service, record.uidb);
    print_xid_entry(out, level + 1, ac.xid, record.xid.to_host());
    if (bports_present) {
        for (Received<Bport> &bport : record.bports) {
            const Element of_bport(out, "bridge_ports");
            print_bport(out, level + 1, bport.to_host());
        }
    }
}

static std::uint32_t print_egress(Output &out, std::uint32_t level, const AcContext &ac, std::uint32_t np_count,
                                  ShowData block)
{
    constexpr std::uint32_t bports_present = 0x01; // on the ingress side, any bit of the word counts
    ShowDataCursor cursor{block};
    const auto [head, records] = cursor.take_together<VplsEgressBlock, VplsNpRecord>(1, np_count);
    if (head.empty()) {
        return short_data(out, level, block.size(), cursor.end());
    }
    const NpRange nps = np_range(ac.requested_np, np_count);
    for (std::uint32_t np = nps.first; np < nps.end; ++np) {
        const Element of_np(out, "nps");
        VplsNpRecord *record = record_of(records, np);
        if (record == nullptr) {
            return print_np_without_record(out, level, np);
        }
        print_np(out, level, L2FIB_EGRESS, ac, np, *record, (record->bports_present & bports_present) != 0);
    }
    return 0;
}

static void print_storm_control_of_np(Output &out, std::uint32_t level, const BridgePortContext &port, std::uint32_t np,
                                      Received<StormControlProfile> &profile)
{
    const Section section(out, "storm_control");
    const bool kbps = (port.storm_control_unit & BridgePortContext::storm_control_in_kbps) != 0;
    const StormControlConfig config = storm_control_config(
        port.features, {&port.broadcast_rate, &port.multicast_rate, &port.unknown_unicast_rate}, kbps);
    note(out, "enabled", config.any_enabled());
    if (!config.any_enabled()) {
        out.line(level, "Storm Control not enabled");
    } else if (np >= std::size(port.storm_control)) {
        const Failure failure(out);
        out.line(level, "Invalid NP ID");
    } else if (const StormControlState &state = port.storm_control[np].value(); has_storm_control(state)) {
        print_storm_control(out, level, config, state, profile.to_host(), np);
    }
}

static std::uint32_t print_ingress(Output &out, std::uint32_t level, const AcContext &ac, std::uint32_t np_count,
                                   ShowData block)
{
    ShowDataCursor cursor{block};
    const auto [head, records, trailer] =
        cursor.take_together<VplsIngressBlock, VplsIngressNpRecord, VplsIngressTrailer>(1, np_count, 1);
    if (head.empty()) {
        return short_data(out, level, block.size(), cursor.end());
    }
    const BridgePortContext &port = head.front().port.to_host();
    print_flooding(out, level, port);

    const NpRange nps = np_range(ac.requested_np, np_count);
    for (std::uint32_t np = nps.first; np < nps.end; ++np) {
        const Element of_np(out, "nps");
        VplsIngressNpRecord *record = record_of(records, np);
        if (record == nullptr) {
            return print_np_without_record(out, level, np);
        }
        print_np(out, level, L2FIB_INGRESS, ac, np, record->np, record->np.bports_present != 0);
        print_storm_control_of_np(out, level + 1, port, np, record->storm_control);
    }
    return 0;
}

std::uint32_t print_vpls_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac,
                            ShowData block)
{
    auto *received_count = block.at<Received<VplsNpCount>>(0);
    if (received_count == nullptr) {
        return short_data(out, level, block.size(), sizeof(VplsNpCount));
    }
    const std::uint32_t np_count = received_count->to_host().count;
    if (!np_count_is_valid(np_count)) {
        out.line(level);
        print_invalid_np_count(out, np_count);
        return 0;
    }
    return direction == L2FIB_INGRESS ? print_ingress(out, level, ac, np_count, block)
                                      : print_egress(out, level, ac, np_count, block);
}

} // namespace l2fib
