// show-many KIND COUNT: shows an object with so many of what it can have many of.
// show-many most-text: prints how much text 4 MiB of show data give at most, by view; fails when it is too much.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "hw/plain_ac.h"
#include "hw/vpls_ac.h"
#include "hw/xid_entry.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/names.h"
#include "rp/next_hop_context.h"
#include "tests/support/text_size.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace l2fib
{

static ShowDataBuilder ac_with_nps(std::uint32_t count)
{
    AcShowData ac{};
    set(ac.np_count.count, static_cast<std::uint16_t>(count));
    set(ac.context.to_compose().service, service_vpls);
    set(ac.context.to_compose().state, state_bound);
    set(ac.context.to_compose().requested_np, UINT32_MAX);
    VplsEgressBlock block{};
    set(block.np_count.to_compose().count, count);
    ShowDataBuilder builder;
    builder.add(ac).add_zeros(np_entry_size * count).add(block);
    for (std::uint32_t np = 0; np < count; ++np) {
        builder.add(VplsNpRecord{});
    }
    return builder;
}

/// The ACs whose NPs are indented each deeper than the one before, with all that an entry can show.
static ShowDataBuilder plain_ac_with_nps(std::uint32_t count)
{
    AcShowData ac{};
    set(ac.np_count.count, static_cast<std::uint16_t>(count));
    set(ac.context.to_compose().service, service_local_switch);
    set(ac.context.to_compose().state, state_bound);
    set(ac.context.to_compose().requested_np, UINT32_MAX);
    XidEntry entry;
    std::memset(&entry, 0xff, sizeof entry);
    set(entry.type, XidEntry::type_pw_control_word);
    set(entry.remote_type, XidEntry::type_pw_control_word);
    ShowDataBuilder builder;
    builder.add(ac).add_zeros(np_entry_size * count).add(PlainAcBlock{});
    for (std::uint32_t np = 0; np < count; ++np) {
        builder.add(entry);
    }
    return builder;
}

static ShowDataBuilder bridge_with_members(std::uint32_t count)
{
    BridgeShowData bridge{};
    set(bridge.np_count.count, 1);
    set(bridge.context.to_compose().state, state_bound);
    BridgeHalNpEntry np{};
    set(np.shg_members[0], static_cast<std::uint16_t>(count));
    BridgeMemberCounts counts{};
    set(counts.members, static_cast<std::uint16_t>(count));
    ShowDataBuilder builder;
    builder.add(bridge).add(np).add(counts).add(BridgeDomainRecord{});
    for (std::uint32_t copy = 0; copy < bridge_member_copies * count; ++copy) {
        builder.add(BridgeMemberRecord{});
    }
    return builder;
}

static ShowDataBuilder next_hop_with_paths(std::uint32_t count)
{
    NextHopContext next_hop{};
    set(next_hop.num_paths, static_cast<std::uint16_t>(count));
    ShowDataBuilder builder;
    builder.add(next_hop);
    Bytes<sizeof(IgpPath)> path; // with a backup path, and long numbers
    path.fill(0xff);
    for (std::uint32_t i = 0; i < count; ++i) {
        builder.add(path);
    }
    return builder;
}

/// Lines of an empty string with a verdict: no other bytes make as much text.
static ShowDataBuilder report_with_lines(std::uint32_t count)
{
    ShowDataBuilder builder;
    for (std::uint32_t line = 0; line < count; ++line) {
        builder.add(Bytes<7>{3, 4, 3, '\0', 4, 3, 1});
    }
    return builder;
}

/// All strings of a report on the same line.
static ShowDataBuilder report_with_strings(std::uint32_t count)
{
    ShowDataBuilder builder;
    for (std::uint32_t string = 0; string < count; ++string) {
        builder.add(Bytes<16>{3, 16, 2, 'i', 'n', ' ', 'u', 's', 'e'});
    }
    return builder;
}

struct Kind {
    const char *name;
    std::uint32_t objtype;
    std::uint32_t view;
    ShowDataBuilder (*make)(std::uint32_t count);
    std::uint32_t most; ///< that its show data can say; UINT32_MAX where nothing but the size ends it
};
static constexpr Kind kinds[] = {
    {"nps", L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, ac_with_nps, 8},
    {"plain-nps", L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, plain_ac_with_nps, 255},
    {"members", L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_DETAIL, bridge_with_members, 65535},
    {"paths", L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE, next_hop_with_paths, 65535},
    {"lines", L2FIB_OBJTYPE_AC, L2FIB_VIEW_INCONSISTENT, report_with_lines, UINT32_MAX},
    {"strings", L2FIB_OBJTYPE_AC, L2FIB_VIEW_INCONSISTENT, report_with_strings, UINT32_MAX},
};

static std::uint32_t show(const Kind &kind, std::vector<std::uint8_t> data)
{
    return zel_l2fib_print_internal(kind.objtype, 0, L2FIB_EGRESS, kind.view, data.data(), data.size());
}

static int show_many(const std::string &name, std::uint32_t count)
{
    for (const Kind &kind : kinds) {
        if (name == kind.name) {
            return show(kind, kind.make(count).bytes()) == 0 ? 0 : 1;
        }
    }
    return 2;
}

/// Compares what is printed for show data with what it can give.
class TextLimit
{
public:
    void check(const char *name, std::size_t size, std::uint64_t text)
    {
        std::printf("%-20s %9zu bytes of show data, %9lu characters\n", name, size, text);
        is_kept_ = is_kept_ && text <= most_text(size);
    }
    [[nodiscard]] bool is_kept() const { return is_kept_; }

private:
    bool is_kept_ = true;
};

constexpr std::size_t most_show_data = std::size_t{4} << 20U;

/// The largest count of a kind whose show data has at most most_show_data.
static std::uint32_t largest_count(const Kind &kind)
{
    constexpr std::uint32_t some = 8;
    const std::size_t fixed = kind.make(0).bytes().size();
    const std::size_t each = (kind.make(some).bytes().size() - fixed) / some;
    return std::min(kind.most, static_cast<std::uint32_t>((most_show_data - fixed) / each));
}

/// A view that every router has, on show data of any kind.
struct View {
    const char *name;
    std::uint32_t (*show)(std::uint8_t *data, std::uint64_t size);
};

template <std::uint32_t objtype, std::uint32_t view, std::uint32_t direction>
static std::uint32_t show_as(std::uint8_t *data, std::uint64_t size)
{
    return zel_l2fib_print_internal(objtype, 0, direction, view, data, size);
}

static constexpr View views[] = {
    {"AC, ingress", show_as<L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, L2FIB_INGRESS>},
    {"AC, egress", show_as<L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, L2FIB_EGRESS>},
    {"AC, private", show_as<L2FIB_OBJTYPE_AC, L2FIB_VIEW_PRIVATE, L2FIB_INGRESS>},
    {"AC, inconsistency", show_as<L2FIB_OBJTYPE_AC, L2FIB_VIEW_INCONSISTENT, L2FIB_INGRESS>},
    {"PW, ingress", show_as<L2FIB_OBJTYPE_MPLS, L2FIB_VIEW_DETAIL, L2FIB_INGRESS>},
    {"PW, private", show_as<L2FIB_OBJTYPE_MPLS, L2FIB_VIEW_PRIVATE, L2FIB_INGRESS>},
    {"bridge, ingress", show_as<L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_DETAIL, L2FIB_INGRESS>},
    {"bridge, egress", show_as<L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_DETAIL, L2FIB_EGRESS>},
    {"bridge, private", show_as<L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_PRIVATE, L2FIB_INGRESS>},
    {"bridge port", show_as<L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_VIEW_DETAIL, L2FIB_INGRESS>},
    {"MAC", show_as<L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_VIEW_DETAIL, L2FIB_INGRESS>},
    {"next hop", show_as<L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE, L2FIB_INGRESS>},
    {"resources", show_as<L2FIB_OBJTYPE_RSRC_MON, L2FIB_VIEW_PRIVATE, L2FIB_INGRESS>},
    {"state summary",
     [](std::uint8_t *d, std::uint64_t n) { return zel_l2fib_platform_summary_hw_print_internal(0, 0, d, n); }},
    {"event statistics",
     [](std::uint8_t *d, std::uint64_t n) { return zel_l2fib_platform_msg_counter_hw_print_internal(0, 0, d, n); }},
    {"HAL summary", [](std::uint8_t *d, std::uint64_t n) { return zel_l2fib_trident_print_summary(0, d, n); }},
};

/// Every sample's bytes over and over, and nothing but ones, as every object.
static void check_views(TextLimit &limit)
{
    std::vector<std::vector<std::uint8_t>> inputs = {std::vector<std::uint8_t>(most_show_data, 0xff)};
    for (const SampleCapture &sample : sample_captures) {
        std::vector<std::uint8_t> data = sample.make();
        data.reserve(most_show_data);
        for (std::size_t i = 0; data.size() < most_show_data; ++i) {
            data.push_back(data[i]);
        }
        inputs.push_back(std::move(data));
    }
    for (const View &view : views) {
        std::uint64_t most = 0;
        for (std::vector<std::uint8_t> data : inputs) {
            most = std::max(most, text_size([&] { view.show(data.data(), data.size()); }));
        }
        limit.check(view.name, most_show_data, most);
    }
}

static int print_most_text()
{
    TextLimit limit;
    for (const Kind &kind : kinds) {
        const std::vector<std::uint8_t> data = kind.make(largest_count(kind)).bytes();
        limit.check(kind.name, data.size(), text_size([&] { show(kind, data); }));
    }
    check_views(limit);
    return limit.is_kept() ? 0 : 1;
}

} // namespace l2fib

int main(int argc, char **argv)
{
    if (argc == 2 && std::string(argv[1]) == "most-text") {
        return l2fib::print_most_text();
    }
    return argc == 3 ? l2fib::show_many(argv[1], static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10))) : 2;
}
