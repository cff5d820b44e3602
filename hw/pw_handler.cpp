#include "hw/pw_handler.h"

#include "common/failure.h"
#include "common/list.h"
#include "common/show_data_cursor.h"
#include "common/working_copies.h"
#include "hw/flooding.h"
#include "hw/np.h"
#include "rp/names.h"

namespace l2fib
{

static constexpr FlagTable layer_flags{{{PwContext::layer_invalid, "invalid"}}};

static std::uint32_t print_point_to_point(Output &out, std::uint32_t level, ShowData data, const char *handler)
{
    ShowDataCursor cursor{data};
    const auto *pw = cursor.take<PwShowData>();
    if (pw == nullptr) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const std::uint32_t np_count = pw->np_count.from_wire();
    if (!np_count_is_valid(np_count)) {
        out.line(level);
        print_invalid_np_count(out, np_count);
        return 0;
    }
    const auto records = cursor.take<PwNpRecord>(np_count);
    if (records.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    std::uint32_t status = 0;
    for (PwNpRecord &record : records) {
        out.line(level, "NP%d", record.np.from_wire());
        status = zel_l2fib_print_xid_entry(out, level + 1, pw->context.xid, &record.xid);
        report_xid_failure(out, level, handler, pw->context.xid, status);
    }
    return status;
}

/// The rest of a path's line: where it leaves the router. Its values continue at the line's indentation, its flags
/// under the first of them.
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
        primary.item("Unresolved"); // and without a primary path there is no backup
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

/// Prints the ingress part, where there is a whole one, from copies: the show data keeps it as received.
static void print_vpls_ingress(Output &out, std::uint32_t level, ShowDataCursor &cursor,
                               WorkingCopies<BridgePortContext> &port, WorkingCopies<StormControlProfile> &profiles,
                               std::uint32_t np_count)
{
    const auto [ingress, stored_profiles] = cursor.take_together<PwIngressBlock, StormControlProfile>(1, np_count);
    if (ingress.empty()) {
        return;
    }
    port.fill_in(0, ingress[0].port);
    print_flooding(out, level, port[0]);

    Layer3Paths paths = ingress[0].paths;
    paths.to_host();
    print_paths(out, level, paths);

    for (std::uint32_t np = 0; np < np_count; ++np) { // no line shows these
        profiles.fill_in(np, stored_profiles[np]);
    }
}

static std::uint32_t print_vpls(Output &out, std::uint32_t level, std::uint32_t direction, const PwContext &pw,
                                ShowData data, const char *handler)
{
    print_flags(out, level, "Trident Layer Flags", layer_flags, pw.layer_flags);

    constexpr std::uint8_t never_filled = 0xff;
    WorkingCopies<BridgePortContext> port(1, never_filled);
    if (!port.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    ShowDataCursor cursor{data};
    const auto *show_data = cursor.take<PwShowData>();
    if (show_data == nullptr) {
        return short_data(out, level, data.size(), cursor.end());
    }
    const std::uint32_t np_count = show_data->np_count.from_wire();
    if (!np_count_is_valid(np_count)) {
        print_invalid_np_count(out, np_count); // behind the layer flags, on their line
        return 0;
    }
    WorkingCopies<StormControlProfile> profiles(np_count, 0);
    if (!profiles.obtained()) {
        return L2FIB_SHOW_ERR_NOMEM;
    }
    const auto entries = cursor.take<XidEntry>(np_count);
    if (entries.empty()) {
        return short_data(out, level, data.size(), cursor.end());
    }
    if (direction == L2FIB_INGRESS) {
        print_vpls_ingress(out, level, cursor, port, profiles, np_count);
    }
    std::uint32_t status = 0;
    for (std::uint32_t np = 0; np < np_count; ++np) {
        out.line(level, "NP%d", np);
        status = zel_l2fib_print_xid_entry(out, level + 1, pw.xid, &entries[np]);
        report_xid_failure(out, level + 1, handler, pw.xid, status);
    }
    return status;
}

std::uint32_t zel_l2fib_pw_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data)
{
    if (data.is_null()) {
        return null_arguments(out, level, __func__);
    }
    const auto *pw = data.at<PwContext>(0);
    if (pw != nullptr && pw->service == service_mtun) {
        return print_point_to_point(out, level, data, __func__);
    }
    if (pw != nullptr && pw->service == service_vpls) {
        return print_vpls(out, level, direction, *pw, data, __func__);
    }
    return L2FIB_SHOW_ERR_DATA;
}

} // namespace l2fib
