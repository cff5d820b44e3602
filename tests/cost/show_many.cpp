// show-many KIND COUNT: shows an object with so many of what it can have many of.
#include "examples/show_data_builder.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_handler.h"
#include "hw/bridge_member.h"
#include "hw/vpls_ac.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/names.h"
#include "rp/next_hop_context.h"
#include "zel_l2fib/show.h"

#include <cstdlib>
#include <string>

namespace l2fib
{

static ShowDataBuilder ac_with_nps(std::uint32_t count)
{
    AcShowData ac{};
    set(ac.np_count, static_cast<std::uint16_t>(count));
    set(ac.context.service, service_vpls);
    set(ac.context.state, state_bound);
    set(ac.context.requested_np, UINT32_MAX);
    VplsEgressBlock block{};
    set(block.np_count, count);
    ShowDataBuilder builder;
    builder.add(ac).add_zeros(np_entry_size * count).add(block);
    for (std::uint32_t np = 0; np < count; ++np) {
        builder.add(VplsNpRecord{});
    }
    return builder;
}

static ShowDataBuilder bridge_with_members(std::uint32_t count)
{
    BridgeShowData bridge{};
    set(bridge.np_count, 1);
    set(bridge.context.state, state_bound);
    BridgeHalNpEntry np{};
    set_as_stored(np.shg_members[0], static_cast<std::uint16_t>(count));
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
    for (std::uint32_t path = 0; path < count; ++path) {
        builder.add(IgpPath{});
    }
    return builder;
}

/// Lines of an empty string with a verdict: no other bytes make as much text.
static ShowDataBuilder report_with_lines(std::uint32_t count)
{
    ShowDataBuilder builder;
    for (std::uint32_t line = 0; line < count; ++line) {
        builder.add(Bytes<7>{3, 4, 2, '\0', 4, 3, 1});
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
};
static constexpr Kind kinds[] = {
    {"nps", L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, ac_with_nps},
    {"members", L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_DETAIL, bridge_with_members},
    {"paths", L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE, next_hop_with_paths},
    {"lines", L2FIB_OBJTYPE_AC, L2FIB_VIEW_INCONSISTENT, report_with_lines},
    {"strings", L2FIB_OBJTYPE_AC, L2FIB_VIEW_INCONSISTENT, report_with_strings},
};

static int show_many(const std::string &name, std::uint32_t count)
{
    for (const Kind &kind : kinds) {
        if (name == kind.name) {
            std::vector<std::uint8_t> data = kind.make(count).bytes();
            return zel_l2fib_print_internal(kind.objtype, 0, L2FIB_EGRESS, kind.view, data.data(), data.size()) == 0
                       ? 0
                       : 1;
        }
    }
    return 2;
}

} // namespace l2fib

int main(int argc, char **argv)
{
    return argc == 3 ? l2fib::show_many(argv[1], static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10))) : 2;
}
