#include "hw/mac_handler.h"

#include "common/failure.h"
#include "common/formatters.h"
#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable mac_flags{{
    {MacEntry::remote_mac, "Remote MAC"},
    {30, "My B-SA"},
    {29, "EVPN"},
    {28, "Filter"},
    {27, "Static MAC"},
    {26, "Global XID"},
    {25, "Learned Local"},
    {24, "BVI"},
    {21, "Port Level MAC Limit"},
    {20, "MAC Security"},
    {17, "Remote Rack"},
    {16, "EVPN MH Dest"},
    {15, "EVPN SHG label"},
}};

static void mac_to_host(BridgeMacShowData &mac)
{
    MacEntry &entry = mac.entry;
    to_host(mac.context.unread_40, mac.context.unread_76, entry.flags, entry.xid, entry.bvi_tcam_index,
            entry.bd_learn_key, entry.xid_learn_key, entry.learn_limit_count_index, entry.unread_24, entry.esi,
            entry.ldi, entry.evpn_label, entry.learned_vlan, entry.unread_50, entry.unread_54);
}

static void print_entry_line(Output &out, std::uint32_t level, const MacEntry &entry)
{
    List line{out, level};
    line.item_if(entry.xid != 0, "XID: 0x%08x", entry.xid);
    line.item("BVI TCAM index: %d", entry.bvi_tcam_index);
    line.item("BD learn key: %d", entry.bd_learn_key);
    line.item("XID learn key: %d", entry.xid_learn_key);
    line.item("Learn Limit Count Index: %d", entry.learn_limit_count_index);
    line.item("ESI: %u", entry.esi);
    line.item("LDI: %u", entry.ldi);
    line.item("EVPN Label: %u", entry.evpn_label);
    line.item("Learned VLAN: %u", entry.learned_vlan);
}

std::uint32_t zel_l2fib_mac_print_handler(Output &out, std::uint32_t level, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, __func__);
    }
    auto *mac = data.at<BridgeMacShowData>(0);
    if (mac == nullptr) {
        return short_data(out, level, data.size(), sizeof(BridgeMacShowData));
    }
    mac_to_host(*mac);

    out.line(level, "MAC: %s ", mac_text(mac->context.mac));
    List keys{out, level};
    keys.item("Bridge Learn Key: %d", mac->context.bridge_learn_key);
    keys.item("Port Learn Key: %d", mac->context.port_learn_key);

    print_flags(out, level + 1, "Flags", mac_flags, mac->entry.flags);
    print_entry_line(out, level + 1, mac->entry);

    out.line(level + 1);
    if (mac->entry.flags.test(MacEntry::remote_mac)) {
        out.text("BMAC: %s", mac_text(mac->entry.bmac));
    }
    return 0;
}

} // namespace l2fib
