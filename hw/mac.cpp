#include "hw/mac.h"

#include "common/failure.h"
#include "common/formatters.h"
#include "common/list.h"
#include "common/show_data_cursor.h"
#include "hw/objects.h"
#include "hw/view_names.h"
#include "rp/bridge_mac_context.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr Literal mac_handler = "zel_l2fib_mac_print_handler";

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

static std::uint32_t print_mac_entry(Output &out, std::uint32_t level, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, mac_handler);
    }
    ShowDataCursor cursor{data};
    const auto [parts, received] = cursor.take_together<BridgeMacShowData, Received<MacEntry>>(1, 1);
    if (parts.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const BridgeMacPlatform &platform = parts[0].platform.to_host();
    const MacEntry &entry = received[0].to_host();

    out.line(level, "MAC: %s ", mac_text(parts[0].context.converted_before().mac));
    List keys{out, level};
    keys.item("Bridge Learn Key: %d", platform.bridge_learn_key);
    keys.item("Port Learn Key: %d", platform.port_learn_key);

    print_flags(out, level + 1, "Flags", mac_flags, entry.flags);
    print_entry_line(out, level + 1, entry);

    out.line(level + 1);
    if (entry.flags.test(MacEntry::remote_mac)) {
        out.text("BMAC: %s", mac_text(entry.bmac));
    }
    return 0;
}

std::uint32_t show_mac(Output &out, std::uint32_t level, std::uint32_t /*direction*/, ShowData data)
{
    const std::uint32_t status = print_mac_entry(out, level, data);
    return report_failure(out, level, hardware_detail_view, L2FIB_OBJTYPE_BRIDGE_MAC, status);
}

} // namespace l2fib
