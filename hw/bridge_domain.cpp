#include "hw/bridge_domain.h"

#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable bridge_domain_flags{{
    {31, "Virtual Table"},
    {30, "PBB Core"},
    {BridgeDomainRecord::pbb_enable, "PBB Enable"},
    {BridgeDomainRecord::pbb_evpn_bd, "PBB EVPN BD"},
    {BridgeDomainRecord::evpn_bd, "EVPN BD"},
    {26, "IGMP Snoop Enable"},
    {25, "MLD Snoop Enable"},
    {24, "Multicast Flooding"},
    {23, "CorePW Present"},
    {22, "Learn Enable"},
    {21, "No members this LC"},
    {BridgeDomainRecord::single_shg0_np, "Single SHG0 NP"},
    {19, "SHG2 Only"},
    {18, "PBB Core to Edge Enable"},
    {17, "PBB Edge to Core Enable"},
    {16, "No Learn"},
    {15, "Learn Drop"},
    {14, "PBB ISID Flood"},
    {13, "MMRP Enabled"},
    {BridgeDomainRecord::bvi, "BVI"},
    {BridgeDomainRecord::vni, "VNI"},
    {10, "Rmt Rack SHG2"},
    {9, "Rmt Rack SHG1"},
    {8, "Rmt Rack SHG0"},
    {BridgeDomainRecord::p2mp_tree_enabled, "P2MP Tree Enabled"},
    {5, "PBB VPLS and eVPN"},
    {4, "PW over BVI"},
    {3, "EVPN Flow Label"},
}};

static auto upper_24_bits(const U32 &word)
{
    return from_field(word >> 8, word);
}

void print_bridge_domain_flags(Output &out, std::uint32_t level, const BridgeDomainRecord &domain)
{
    print_flags(out, level, "Flags", bridge_domain_flags, domain.flags);
    if (domain.flags.test(BridgeDomainRecord::p2mp_tree_enabled)) {
        List label{out, level};
        label.item("Head-end P-Tree Int Label: %d ", domain.head_end_ptree_internal_label);
    }
}

void print_bridge_domain_values(Output &out, std::uint32_t level, const BridgeDomainRecord &domain)
{
    const bool single_shg0_np = domain.flags.test(BridgeDomainRecord::single_shg0_np);
    List members{out, level};
    members.item("Num Members: %d",
                 from_field(single_shg0_np ? 1U : domain.members & 0xffffU, domain.members, "num_members"));
    members.item("Learn Key: 0x%02x", domain.learn_key);
    members.item("Half Age: %d", domain.half_age);

    List groups{out, level};
    groups.item("fgid shg0: 0x%06x", domain.fgid[0]);
    groups.item("fgid shg1: 0x%06x", domain.fgid[1]);
    groups.item("fgid shg2: 0x%06x", domain.fgid[2]);
    groups.item("mgid index: %d", domain.mgid_index);

    if (single_shg0_np) {
        out.line(level, "single_shg0_xid: 0x%08x", domain.single_shg0_xid);
    }

    List features{out, level};
    if (domain.flags.test(BridgeDomainRecord::pbb_enable)) {
        features.item("PBB Core BD: %u", called("pbb_core_bridge_id", domain.pbb_core_bridge_domain));
        features.item("ISID: %u", upper_24_bits(domain.isid));
    }
    features.item("BD learn cntr: 0x%08x", domain.learn_counter);
    features.item_if(domain.flags.test(BridgeDomainRecord::pbb_evpn_bd) ||
                         domain.flags.test(BridgeDomainRecord::evpn_bd),
                     "EVPN cntr: 0x%06x", upper_24_bits(domain.evpn_counter));
    features.item_if(domain.flags.test(BridgeDomainRecord::vni), "vnid: %u", upper_24_bits(domain.vni_id));
    features.item_if(domain.flags.test(BridgeDomainRecord::bvi), "BVI TCAM index: 0x%06x",
                     upper_24_bits(domain.bvi_tcam_index));
}

} // namespace l2fib
