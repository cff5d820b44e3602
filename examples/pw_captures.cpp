// Pseudowires: a point-to-point one, and one of a bridge domain whose path is a LAG with a backup.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/pw.h"
#include "hw/storm_control.h"
#include "rp/names.h"

namespace l2fib
{

static PwHardwareShowData pw_show_data(std::uint32_t service, std::uint32_t xid, std::uint32_t np_count)
{
    PwHardwareShowData data{};
    PwContext &pw = data.rp.context.to_compose();
    set(pw.service, service);
    set(pw.state, state_bound);
    set(pw.xid, xid);
    set(pw.mac_limit, 4000);
    set(pw.vc_label, 24001);
    set(pw.disp_vc_label, 24017);
    set(pw.nr_ldi_hash, 0x1f);
    set(pw.r_ldi_hash, 0x2c);
    set(data.rp.platform.to_compose().port_learn_key, 9);
    set_flags(pw.flags, {PwContext::control_word, PwContext::inband_vccv});
    set(data.np_count, np_count);
    return data;
}

static XidEntry pw_xid_entry()
{
    XidEntry entry{};
    set(entry.vpn_id, 0x2a);
    set(entry.virtual_port, 0x1a02);
    set_flags(entry.flags, {29, XidEntry::pw_vc_type_4});
    set(entry.type, XidEntry::type_pw_control_word);
    set(entry.imposition_label, 24001);
    set(entry.disposition_label, 24017);
    set(entry.nh_index, 0x2001);
    set(entry.tunnel_interface, -1);
    return entry;
}

std::vector<std::uint8_t> make_point_to_point_pw()
{
    constexpr std::uint32_t np_count = 2;
    ShowDataBuilder builder;
    builder.add(pw_show_data(service_mtun, 0x00380001, np_count));
    for (std::uint32_t np = 0; np < np_count; ++np) {
        PwNpRecord record{};
        set(record.np, np);
        record.xid = as_sent(pw_xid_entry());
        set(record.xid.to_compose().remote_type, XidEntry::type_ac);
        builder.add(record);
    }
    return builder.bytes();
}

static PwIngressBlock ingress_block()
{
    PwIngressBlock block{};
    BridgePortContext &port = block.port.to_compose();
    set(port.slot_mask[0], 0x21);
    set(port.slot_mask[1], 0x02);
    set(port.np_flood_mask, 0x0003);
    Layer3Paths &paths = block.paths.to_compose();
    set_flags(paths.state.flags, {PathState::backup_valid});
    set_flags(paths.primary.flags, {PathDescriptor::lag, PathDescriptor::ifhandle_valid});
    set(paths.primary.sfp_or_lagid, 0x0040);
    set(paths.primary.ifhandle, 0x08000060);
    set_flags(paths.backup.flags, {PathDescriptor::ifhandle_valid});
    set(paths.backup.sfp_or_lagid, 0x0112);
    set(paths.backup.ifhandle, 0x080000a0);
    return block;
}

std::vector<std::uint8_t> make_vpls_pw_ingress()
{
    constexpr std::uint32_t np_count = 2;
    PwHardwareShowData data = pw_show_data(service_vpls, 0x00380005, np_count);
    set(data.rp.context.to_compose().bridge_id, 12);
    set(data.rp.context.to_compose().shg, 1);

    XidEntry entry = pw_xid_entry();
    set_flags(entry.flags, {XidEntry::vpls});
    set(entry.bridge_domain, 12);
    set(entry.shg, 1);
    set(entry.learn_count_limit, 4000);
    set(entry.learn_key, 9);

    ShowDataBuilder builder;
    builder.add(data).add(entry).add(entry).add(ingress_block());
    return builder.add_zeros(np_count * sizeof(StormControlProfile)).bytes();
}

} // namespace l2fib
