#include "hw/bridge_handler.h"

#include "common/failure.h"
#include "common/list.h"
#include "common/show_data_cursor.h"
#include "common/working_copies.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_hal_context.h"
#include "hw/bridge_member.h"
#include "hw/np.h"
#include "hw/storm_control.h"
#include "rp/bridge_context.h"

#include <algorithm>

namespace l2fib
{

/// Walks through the show data of a bridge and prints what the NPs hold. A step that returns false met the end of it.
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
    std::uint32_t cut_short() { return short_data(out_, level_ + 1, data_.size(), cursor_.end()); }

    Output &out_;
    std::uint32_t level_;
    ShowData data_;
    ShowDataCursor cursor_;

    const BridgeContext *bridge_ = nullptr;
    std::span<const BridgeHalNpEntry> hal_nps_;
    const BridgeFeatureBlock1 *feature_block_1_ = nullptr;       // there for every flag that asks for it
    std::span<const BridgeFeatureBlock1Np> feature_block_1_nps_; // likewise
    const BridgeMemberCounts *counts_ = nullptr;
    std::uint32_t printed_members_ = 0;
};

std::uint32_t BridgeWalk::print(std::uint32_t direction)
{
    const auto *show_data = cursor_.take<BridgeShowData>();
    if (show_data == nullptr) {
        return cut_short();
    }
    const std::uint32_t np_count = show_data->np_count.from_wire();
    if (!np_count_is_valid(np_count)) {
        out_.line(level_ + 1);
        print_invalid_np_count(out_, np_count);
        if (np_count > max_nps) {
            out_.text(". Bridge.");
        }
        return 0;
    }
    bridge_ = &show_data->context;
    hal_nps_ = cursor_.take<BridgeHalNpEntry>(np_count);
    return hal_nps_.empty() ? cut_short() : print_hardware(direction);
}

std::uint32_t BridgeWalk::print_hardware(std::uint32_t direction)
{
    if (bridge_->has_feature_block_1() && !take_feature_block_1()) {
        return cut_short();
    }
    auto *counts = cursor_.take<BridgeMemberCounts>();
    if (counts == nullptr) {
        return cut_short();
    }
    counts->to_host();
    counts_ = counts;

    out_.line(level_ + 1);
    out_.line(level_ + 1, "Platform Bridge Domain Hardware Information:");
    if (direction == L2FIB_INGRESS && bridge_->has_feature_block_2()) {
        out_.line(level_ + 2);
        if (const std::uint32_t status = print_storm_control_of_bridge(); status != 0) {
            return status;
        }
        out_.line(level_ + 2);
    }
    for (std::uint32_t np = 0; np < hal_nps_.size(); ++np) {
        if (!print_np(np)) {
            return cut_short();
        }
    }
    out_.line(level_ + 2);
    print_next_hop_counts();
    return print_pw_over_bvi_members() ? 0 : cut_short();
}

bool BridgeWalk::take_feature_block_1()
{
    const auto [block, nps] = cursor_.take_together<BridgeFeatureBlock1, BridgeFeatureBlock1Np>(1, np_count());
    if (block.empty()) {
        return false;
    }
    block[0].to_host();
    for (std::uint32_t np = 0; np < nps.size(); ++np) {
        nps[np].to_host();
        if (bridge_->bvi_present()) {
            out_.line(level_ + 1, "NP %d: BVI TCAM index: 0x%08x ", np, nps[np].bvi_tcam_index);
        }
    }
    feature_block_1_ = block.data();
    feature_block_1_nps_ = nps;
    return true;
}

/// The first NP's storm control stands for all of them.
std::uint32_t BridgeWalk::print_storm_control_of_bridge()
{
    const auto [states, stored_profiles] =
        cursor_.take_together<StormControlState, StormControlProfile>(np_count(), np_count());
    if (states.empty()) {
        return cut_short();
    }
    for (StormControlState &state : states) {
        state.to_host();
    }
    WorkingCopies<StormControlProfile> profiles(np_count(), 0);
    if (!profiles.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    for (std::uint32_t np = 0; np < np_count(); ++np) {
        profiles.fill_in(np, stored_profiles[np]);
    }
    if (has_storm_control(states[0])) {
        const auto &rate = profiles[0].rate;
        const bool kbps = is_set(bridge_->hal.flags, BridgeHalContext::storm_control_unit_kbps);
        const auto config = storm_control_config(bridge_->features, {rate[0], rate[1], rate[2]}, kbps);
        print_storm_control(out_, level_ + 3, config, states[0], profiles[0], 0);
    }
    return 0;
}

bool BridgeWalk::print_np(std::uint32_t np)
{
    List heading{out_, level_ + 2};
    auto *domain = cursor_.take<BridgeDomainRecord>();
    if (domain == nullptr) {
        return false;
    }
    domain->to_host();
    heading.item("Bridge Domain: %d NP %d", bridge_->bridge_id, np);
    print_bridge_domain_flags(out_, level_ + 3, *domain);
    print_statistics_pointers(np);
    print_bridge_domain_values(out_, level_ + 3, *domain);
    return print_members(np);
}

void BridgeWalk::print_statistics_pointers(std::uint32_t np)
{
    if (bridge_->flags.test(BridgeContext::pbb_statistics_pointer)) {
        out_.line(level_ + 3, "pbb-stats-ptr NP %d: 0x%08x ", np, feature_block_1_nps_[np].pbb_statistics_pointer);
    }
    if (bridge_->flags.test(BridgeContext::evpn_statistics_pointer)) {
        out_.line(level_ + 3, "evpn-stats-ptr NP %d: 0x%08x ", np, feature_block_1_nps_[np].evpn_statistics_pointer);
    }
}

/// The NP's members, as far as the members of the whole bridge reach.
bool BridgeWalk::print_members(std::uint32_t np)
{
    const BridgeHalNpEntry &hal = hal_nps_[np];
    for (std::uint32_t member = 0; member < hal.members() && printed_members_ < counts_->members; ++member) {
        const auto copies = cursor_.take<BridgeMemberRecord>(bridge_member_copies);
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

/// The first NP's counts stand for all of them.
bool BridgeWalk::print_pw_over_bvi_members()
{
    if (!bridge_->bvi_present() && !bridge_->flags.test(BridgeContext::next_hop_has_bvi)) {
        return true;
    }
    const std::uint32_t count = std::min(counts_->pw_over_bvi_members.value(), feature_block_1_nps_[0].members());
    for (std::uint32_t member = 0; member < count; ++member) {
        const auto copies = cursor_.take<BridgeMemberRecord>(bridge_member_copies);
        if (copies.empty()) {
            return false;
        }
        print_pw_bvi_member(out_, level_ + 2, member, copies);
    }
    return true;
}

std::uint32_t zel_l2fib_brg_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    return data.is_null() ? null_arguments(out, level + 1, __func__) : BridgeWalk{out, level, data}.print(direction);
}

std::uint32_t print_bridge_with_hal_context(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    ShowDataCursor cursor{data};
    const auto *bridge = cursor.take<BridgeShowData>();
    if (bridge == nullptr) {
        return short_data(out, level, data.size(), cursor.end());
    }
    out.line(level);
    const std::uint32_t np_count = bridge->np_count.from_wire();
    if (!np_count_is_valid(np_count)) {
        print_invalid_np_count(out, np_count);
        return 0;
    }
    const auto nps = cursor.take<BridgeHalNpEntry>(np_count);
    if (nps.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    print_bridge_hal_context(out, level, bridge->context.hal, nps);
    return zel_l2fib_brg_print_handler(out, level, direction, data);
}

} // namespace l2fib
