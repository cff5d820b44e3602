#include "hw/bridge.h"

#include "common/failure.h"
#include "common/list.h"
#include "common/show_data_cursor.h"
#include "common/working_copies.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_hal_context.h"
#include "hw/bridge_member.h"
#include "hw/np.h"
#include "hw/objects.h"
#include "hw/storm_control.h"
#include "hw/view_names.h"
#include "rp/bridge_context.h"
#include "zel_l2fib/show.h"

#include <algorithm>

namespace l2fib
{

constexpr Literal bridge_handler = "zel_l2fib_brg_print_handler";

/// Walks through the show data of a bridge, and prints what the HAL and the NPs hold. A step returns false when the
/// show data ends before it.
class BridgeWalk
{
public:
    BridgeWalk(Output &out, std::uint32_t level, ShowData data) : out_(out), level_(level), data_(data), cursor_(data)
    {
    }

    std::uint32_t print(std::uint32_t direction);

private:
    std::uint32_t print_hardware(std::uint32_t direction);
    bool take_feature_block_1();
    std::uint32_t print_storm_control_of_bridge();
    bool print_np(std::uint32_t np);
    void print_statistics_pointers(std::uint32_t np);
    bool print_members(std::uint32_t np);
    void print_next_hop_counts();
    bool print_pw_over_bvi_members();

    [[nodiscard]] std::uint32_t np_count() const { return static_cast<std::uint32_t>(hal_nps_.size()); }
    std::uint32_t cut_short(std::uint32_t level) { return short_data(out_, level, data_.size(), cursor_.end()); }

    Output &out_;
    std::uint32_t level_;
    ShowData data_;
    ShowDataCursor cursor_;

    const BridgeContext *bridge_ = nullptr;
    const BridgeHalContext *hal_ = nullptr;
    std::span<const BridgeHalNpEntry> hal_nps_;
    const BridgeFeatureBlock1 *feature_block_1_ = nullptr;           // there whenever a flag asks for it
    std::span<Received<BridgeFeatureBlock1Np>> feature_block_1_nps_; // likewise, and converted
    const BridgeMemberCounts *counts_ = nullptr;
    std::uint32_t printed_members_ = 0;
};

/// Begins with the RP's context and the HAL's at its end.
std::uint32_t BridgeWalk::print(std::uint32_t direction)
{
    const auto *parts = cursor_.take<BridgeShowData>();
    if (parts == nullptr) {
        return cut_short(level_);
    }
    out_.line(level_);
    const std::uint32_t np_count = parts->np_count.count; // all 16 bits: a count that is too large is reported
    if (!np_count_is_valid(np_count)) {
        print_invalid_np_count(out_, np_count);
        return 0;
    }
    bridge_ = &parts->context.converted_before();
    hal_ = &parts->hal;
    hal_nps_ = cursor_.take<BridgeHalNpEntry>(np_count);
    if (hal_nps_.empty()) {
        return cut_short(level_);
    }
    print_bridge_hal_context(out_, level_, *hal_, hal_nps_);
    return print_hardware(direction);
}

std::uint32_t BridgeWalk::print_hardware(std::uint32_t direction)
{
    if (bridge_->has_feature_block_1() && !take_feature_block_1()) {
        return cut_short(level_ + 1);
    }
    auto *counts = cursor_.take<Received<BridgeMemberCounts>>();
    if (counts == nullptr) {
        return cut_short(level_ + 1);
    }
    counts_ = &counts->to_host();

    out_.line(level_ + 1);
    out_.line(level_ + 1, "Platform Bridge Domain Hardware Information:");
    if (direction == L2FIB_INGRESS && bridge_->has_feature_block_2()) {
        out_.line(level_ + 2);
        if (const std::uint32_t status = print_storm_control_of_bridge(); status != 0) {
            return status;
        }
        out_.line(level_ + 2);
    }
    for (std::uint32_t np = 0; np < np_count(); ++np) {
        if (!print_np(np)) {
            return cut_short(level_ + 1);
        }
    }
    out_.line(level_ + 2);
    print_next_hop_counts();
    return print_pw_over_bvi_members() ? 0 : cut_short(level_ + 1);
}

bool BridgeWalk::take_feature_block_1()
{
    const auto [block, nps] =
        cursor_.take_together<Received<BridgeFeatureBlock1>, Received<BridgeFeatureBlock1Np>>(1, np_count());
    if (block.empty()) {
        return false;
    }
    feature_block_1_ = &block[0].to_host();
    feature_block_1_nps_ = nps;
    for (std::uint32_t np = 0; np < np_count(); ++np) {
        const BridgeFeatureBlock1Np &entry = nps[np].to_host();
        if (bridge_->bvi_present()) {
            out_.line(level_ + 1, "NP %d: BVI TCAM index: 0x%08x ", np, entry.bvi_tcam_index);
        }
    }
    return true;
}

/// Of storm control, only what the first NP has is shown.
std::uint32_t BridgeWalk::print_storm_control_of_bridge()
{
    const auto [states, received_profiles] =
        cursor_.take_together<Received<StormControlState>, Received<StormControlProfile>>(np_count(), np_count());
    if (states.empty()) {
        return cut_short(level_ + 1);
    }
    for (Received<StormControlState> &received : states) {
        received.to_host();
    }
    WorkingCopies<StormControlProfile> profiles(np_count(), 0);
    if (!profiles.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    for (std::uint32_t np = 0; np < np_count(); ++np) {
        profiles.fill_in(np, received_profiles[np]);
    }
    if (const StormControlState &state = states[0].converted_before(); has_storm_control(state)) {
        const auto &rate = profiles[0].rate;
        const bool kbps = is_set(hal_->flags, BridgeHalContext::storm_control_unit_kbps);
        const auto config = storm_control_config(bridge_->features, {rate[0], rate[1], rate[2]}, kbps);
        print_storm_control(out_, level_ + 3, config, state, profiles[0], 0);
    }
    return 0;
}

bool BridgeWalk::print_np(std::uint32_t np)
{
    List heading{out_, level_ + 2};
    auto *received = cursor_.take<Received<BridgeDomainRecord>>();
    if (received == nullptr) {
        return false;
    }
    const BridgeDomainRecord &domain = received->to_host();
    heading.item("Bridge Domain: %d NP %d", bridge_->bridge_id, np);
    print_bridge_domain_flags(out_, level_ + 3, domain);
    print_statistics_pointers(np);
    print_bridge_domain_values(out_, level_ + 3, domain);
    return print_members(np);
}

void BridgeWalk::print_statistics_pointers(std::uint32_t np)
{
    if (bridge_->flags.test(BridgeContext::pbb_statistics_pointer)) {
        out_.line(level_ + 3, "pbb-stats-ptr NP %d: 0x%08x ", np,
                  feature_block_1_nps_[np].converted_before().pbb_statistics_pointer);
    }
    if (bridge_->flags.test(BridgeContext::evpn_statistics_pointer)) {
        out_.line(level_ + 3, "evpn-stats-ptr NP %d: 0x%08x ", np,
                  feature_block_1_nps_[np].converted_before().evpn_statistics_pointer);
    }
}

/// Prints the NP's members. All NPs together print no more than the whole bridge has.
bool BridgeWalk::print_members(std::uint32_t np)
{
    const BridgeHalNpEntry &hal = hal_nps_[np];
    for (std::uint32_t member = 0; member < hal.members() && printed_members_ < counts_->members; ++member) {
        const auto copies = cursor_.take<Received<BridgeMemberRecord>>(bridge_member_copies);
        if (copies.empty()) {
            return false;
        }
        print_bridge_member(out_, level_ + 3, member, copies, hal.irl_shg0_bound_members);
        ++printed_members_;
    }
    return true;
}

void BridgeWalk::print_next_hop_counts()
{
    if (bridge_->flags.test(BridgeContext::next_hop_has_bvi)) {
        const auto &counts = feature_block_1_->pw_over_bvi;
        out_.text("NHOP has BVI");
        out_.line(level_ + 2, "PW BVI count: shg0: %d, shg1: %d, shg2: %d", counts[0], counts[1], counts[2]);
    }
}

/// The first NP's counts decide how many there are.
bool BridgeWalk::print_pw_over_bvi_members()
{
    if (!bridge_->bvi_present() && !bridge_->flags.test(BridgeContext::next_hop_has_bvi)) {
        return true;
    }
    const std::uint32_t count =
        std::min(counts_->pw_over_bvi_members.value(), feature_block_1_nps_[0].converted_before().members());
    for (std::uint32_t member = 0; member < count; ++member) {
        const auto copies = cursor_.take<Received<BridgeMemberRecord>>(bridge_member_copies);
        if (copies.empty()) {
            return false;
        }
        print_pw_bvi_member(out_, level_ + 2, member, copies);
    }
    return true;
}

std::uint32_t show_bridge(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    const std::uint32_t status =
        data.is_null() ? null_arguments(out, level + 1, bridge_handler) : BridgeWalk{out, level, data}.print(direction);
    return report_failure(out, level + 1, hardware_detail_view, L2FIB_OBJTYPE_BRIDGE, status, "\n");
}

} // namespace l2fib
