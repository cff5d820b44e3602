#include "hw/pw.h"

#include "common/failure.h"
#include "common/list.h"
#include "common/show_data_cursor.h"
#include "common/working_copies.h"
#include "hw/flooding.h"
#include "hw/np.h"
#include "hw/objects.h"
#include "hw/storm_control.h"
#include "hw/view_names.h"
#include "rp/names.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr Literal pw_handler = "zel_l2fib_pw_print_handler";

static constexpr FlagTable layer_flags{{{PwPlatform::layer_invalid, "invalid"}}};

static std::uint32_t print_point_to_point(Output &out, std::uint32_t level, ShowData data)
{
    ShowDataCursor cursor{data};
    const auto *parts = cursor.take<PwHardwareShowData>();
    if (parts == nullptr) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const std::uint32_t np_count = parts->np_count;
    if (!np_count_is_valid(np_count)) {
        out.line(level);
        print_invalid_np_count(out, np_count);
        return 0;
    }
    const auto records = cursor.take<PwNpRecord>(np_count);
    if (records.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const PwContext &pw = parts->rp.context.converted_before();
    for (PwNpRecord &record : records) {
        out.line(level, "NP%d", record.np);
        print_xid_entry(out, level + 1, pw.xid, record.xid.to_host());
    }
    return 0;
}

/// Prints where a path leaves the router. When the line wraps before one of the values, it continues at the line's
/// indentation.
static void print_path(List &line, const PathDescriptor &path)
{
    if (!path.flags.test(PathDescriptor::ifhandle_valid)) {
        line.item("ifhandle invalid");
        return;
    }
    line.item_if(path.flags.test(PathDescriptor::lag), "LAG");
    line.continue_at(line.indentation());
    line.item("ifhandle: 0x%08x", path.ifhandle);
    line.item("sfp_or_lagid: 0x%04x", path.sfp_or_lagid);
}

static void print_paths(Output &out, std::uint32_t level, const Layer3Paths &paths)
{
    List primary{out, level, "Primary L3 path"};
    if (paths.state.flags.test(PathState::unresolved)) {
        primary.item("Unresolved"); // without a primary path there is no backup
        return;
    }
    print_path(primary, paths.primary);

    List backup{out, level, "Backup L3 path"};
    if (!paths.state.flags.test(PathState::backup_valid)) {
        backup.item("Not set");
        return;
    }
    print_path(backup, paths.backup);
}

/// Prints the ingress part if all of it is there. It is read from copies: the show data stays as received.
static void print_vpls_ingress(Output &out, std::uint32_t level, ShowDataCursor &cursor,
                               WorkingCopies<BridgePortContext> &port, WorkingCopies<StormControlProfile> &profiles,
                               std::uint32_t np_count)
{
    const auto [ingress, received_profiles] =
        cursor.take_together<PwIngressBlock, Received<StormControlProfile>>(1, np_count);
    if (ingress.empty()) {
        return;
    }
    port.fill_in(0, ingress[0].port);
    print_flooding(out, level, port[0]);
    print_paths(out, level, HostCopy(ingress[0].paths).record());

    for (std::uint32_t np = 0; np < np_count; ++np) { // no line prints the profiles
        profiles.fill_in(np, received_profiles[np]);
    }
}

static std::uint32_t print_vpls(Output &out, std::uint32_t level, std::uint32_t direction, const PwPlatform &platform,
                                ShowData data)
{
    print_flags(out, level, "Trident Layer Flags", layer_flags, platform.layer_flags);

    constexpr std::uint8_t never_filled = 0xff;
    WorkingCopies<BridgePortContext> port(1, never_filled);
    if (!port.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    ShowDataCursor cursor{data};
    const auto *parts = cursor.take<PwHardwareShowData>();
    if (parts == nullptr) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const std::uint32_t np_count = parts->np_count;
    if (!np_count_is_valid(np_count)) {
        print_invalid_np_count(out, np_count); // after the layer flags, on their line
        return 0;
    }
    WorkingCopies<StormControlProfile> profiles(np_count, 0);
    if (!profiles.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    const auto entries = cursor.take<Received<XidEntry>>(np_count);
    if (entries.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    if (direction == L2FIB_INGRESS) {
        print_vpls_ingress(out, level, cursor, port, profiles, np_count);
    }
    const PwContext &pw = parts->rp.context.converted_before();
    for (std::uint32_t np = 0; np < np_count; ++np) {
        out.line(level, "NP%d", np);
        print_xid_entry(out, level + 1, pw.xid, entries[np].to_host());
    }
    return 0;
}

static std::uint32_t print_pw(Output &out, std::uint32_t level, std::uint32_t direction, const PwContext &pw,
                              const PwPlatform &platform, ShowData data)
{
    if (pw.service == service_mtun) {
        return print_point_to_point(out, level, data);
    }
    if (pw.service == service_vpls) {
        return print_vpls(out, level, direction, platform, data);
    }
    return L2FIB_SHOW_ERR_DATA;
}

static std::uint32_t show_received_pw(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, pw_handler);
    }
    auto *parts = data.at<PwShowData>(0);
    if (parts == nullptr) {
        return L2FIB_SHOW_ERR_DATA;
    }
    const PwContext &pw = parts->context.converted_before();
    const PwPlatform &platform = parts->platform.to_host();
    if (pw.service == service_vpls) {
        List keys{out, level};
        keys.item("Port Learn Key: %u", platform.port_learn_key);
    }
    return pw.state == state_bound ? print_pw(out, level, direction, pw, platform, data) : 0;
}

std::uint32_t show_pw(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    const std::uint32_t status = show_received_pw(out, level, direction, data);
    return report_failure(out, level, hardware_detail_view, L2FIB_OBJTYPE_MPLS, status);
}

} // namespace l2fib
