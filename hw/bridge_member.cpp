#include "hw/bridge_member.h"

#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable member_flags{{
    {31, "Active"},
    {BridgeMemberRecord::irl_bport, "IRL Bport"},
    {BridgeMemberRecord::evpn_ole, "EVPN OLE"},
    {28, "EVPN SHG Label"},
    {BridgeMemberRecord::evpn_label_hash, "EVPN Label Hash"},
    {26, "Remote Rack SHG2"},
    {25, "Remote Rack SHG1"},
    {24, "Remote Rack SHG0"},
    {23, "Local Rack Table"},
}};

/// Flags and values share a line. After "None", the first value follows without a comma. When the values wrap, they
/// continue at the column of the member's heading, left of where the line begins.
static void print_copy(Output &out, std::uint32_t level, int heading_column, const BridgeMemberRecord &member,
                       std::uint32_t irl_shg0_bound_members)
{
    List line{out, level, "Flags"};
    line.flags(member_flags, member.flags);
    line.none_if_empty();
    line.continue_at(heading_column);
    if (member.flags.test(BridgeMemberRecord::evpn_ole)) {
        line.item("Label: %u", member.label);
        line.item("LDI: %u", member.ldi);
        if (member.flags.test(BridgeMemberRecord::evpn_label_hash)) {
            line.item("LAG Hash: 0x%2x", member.lag_hash);
            line.item("nrLDI Hash: 0x%2x", member.nr_ldi_hash);
            line.item("rLDI Hash: 0x%2x", member.r_ldi_hash);
        }
    } else if (member.flags.test(BridgeMemberRecord::irl_bport)) {
        line.item("IRL shg0 bound members: %d", irl_shg0_bound_members);
    } else {
        line.item("XID: 0x%08x", member.xid);
    }
}

void print_bridge_member(Output &out, std::uint32_t level, std::uint32_t member,
                         std::span<Received<BridgeMemberRecord>> copies, std::uint32_t irl_shg0_bound_members)
{
    for (std::uint32_t copy = 0; copy < copies.size(); ++copy) {
        const int heading_column = out.line(level);
        out.text("Bridge Member %d, copy %d ", member, copy);
        print_copy(out, level + 1, heading_column, copies[copy].to_host(), irl_shg0_bound_members);
    }
}

void print_pw_bvi_member(Output &out, std::uint32_t level, std::uint32_t member,
                         std::span<Received<BridgeMemberRecord>> copies)
{
    for (std::uint32_t copy = 0; copy < copies.size(); ++copy) {
        out.line(level, "PW-BVI Bridge Member %d, copy %d ", member, copy);
        List line{out, level + 1};
        line.item("XID: 0x%08x", copies[copy].to_host().xid);
    }
}

} // namespace l2fib
