// Every field and every flag of the records, by the bytes that they lie in: a field that is read elsewhere, at another
// width or in another order, or a bit with another name, changes the text. The expected texts are in screens/.
#include "common/show_data.h"
#include "examples/show_data_builder.h"
#include "hw/bport_entry.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_hal_context.h"
#include "hw/bridge_member.h"
#include "hw/mac.h"
#include "hw/mac_scan.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/next_hop_context.h"
#include "rp/pw_context.h"
#include "tests/support/buffer_layout.h"
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <regex>
#include <sstream>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;

struct RecordCase {
    const char *name;
    BufferLayout layout;
    std::vector<std::string> flags;
    Values values; // that decide what is shown, or would show a clock
    std::function<void(Output &, Wire &)> print;
};

template <class Record>
static Received<Record> &received(Wire &bytes)
{
    return ShowData::unchecked<Received<Record>>(bytes.data());
}

/// The RP's part of a view, as from a client that calls it directly.
template <decltype(zel_l2fib_print_internal_detail) *view>
static auto rp_part(std::uint32_t objtype)
{
    return [objtype](Output &, Wire &bytes) {
        zel_l2fib_hal_print[1].object_print = nullptr;
        view(objtype, 0, L2FIB_INGRESS, 0, bytes.data(), bytes.size());
    };
}
constexpr auto rp_detail = rp_part<zel_l2fib_print_internal_detail>;
constexpr auto rp_private = rp_part<zel_l2fib_print_internal_private>;

static void mac_scan(Output &out, Wire &bytes)
{
    print_mac_scan(out, received<MacScan>(bytes).to_host());
}

static void xid_entry(Output &out, Wire &bytes)
{
    U32 xid{};
    set_converted(xid, 0x12);
    print_xid_entry(out, 0, xid, received<XidEntry>(bytes).to_host());
}

static auto uidb_entry(std::uint32_t direction)
{
    return [direction](Output &out, Wire &bytes) { show_uidb_entry(out, 0, direction, 2, received<UidbEntry>(bytes)); };
}

static void bport(Output &out, Wire &bytes)
{
    print_bport(out, 0, received<Bport>(bytes).to_host());
}

static void bridge_hal(Output &out, Wire &bytes)
{
    const ShowData data{bytes.data(), bytes.size()};
    print_bridge_hal_context(out, 0, *data.at<BridgeHalContext>(0),
                             data.array_at<const BridgeHalNpEntry>(sizeof(BridgeHalContext), 1));
}

static void bridge_domain(Output &out, Wire &bytes)
{
    const BridgeDomainRecord &domain = received<BridgeDomainRecord>(bytes).to_host();
    print_bridge_domain_flags(out, 0, domain);
    print_bridge_domain_values(out, 0, domain);
}

static void bridge_member(Output &out, Wire &bytes)
{
    StoredU16 irl_shg0_bound_members{};
    set(irl_shg0_bound_members, 7);
    print_bridge_member(out, 0, 0, {&received<BridgeMemberRecord>(bytes), 1}, irl_shg0_bound_members);
}

static void mac(Output &, Wire &bytes)
{
    zel_l2fib_trident_print_internal_detail(0, L2FIB_OBJTYPE_BRIDGE_MAC, 1, L2FIB_INGRESS, 0, bytes.data(),
                                            bytes.size());
}

enum UidbBits : bool { fields_only, by_bit };

/// A uIDB entry that was read, with these flags.
static RecordCase uidb_case(const char *name, std::uint32_t direction, UidbBits bits,
                            std::initializer_list<UidbFlag> flags)
{
    UidbEntry entry{};
    set_flags(entry, flags);
    RecordCase c{name, layout_of<UidbEntry>("uidb"), {}, {{"uidb.retrieval_status", 0}}, uidb_entry(direction)};
    for (std::size_t byte = 0; byte < sizeof entry.flags; ++byte) {
        c.values.emplace_back("uidb.flags+" + std::to_string(byte), entry.flags[byte]);
    }
    if (bits == by_bit) {
        c.flags = {"uidb.flags"};
    }
    return c;
}

/// A XID entry of a type.
static RecordCase xid_case(const char *name, std::uint32_t type, const std::vector<std::string> &flags = {},
                           const Values &values = {})
{
    return {name, layout_of<XidEntry>("xid"), flags, Values{{"xid.type", type}} + values, xid_entry};
}

static Values one_of_each(const BufferLayout &layout)
{
    Values values;
    for (const BufferField &field : layout.fields()) {
        values.emplace_back(field.name, 1);
    }
    return values;
}

using Uidb = UidbEntry;
using NpEntry = Bytes<np_entry_size>;

// clang-format off
static const std::vector<RecordCase> record_cases = {
    {"AC context", layout_of<AcShowData>("ac"), {"ac.context.flags"}, {{"ac.context.service", 4}},
     rp_detail(L2FIB_OBJTYPE_AC)},
    {"PW context", layout_of<PwShowData>("pw"), {"pw.context.flags"}, {{"pw.context.service", 2}},
     rp_detail(L2FIB_OBJTYPE_MPLS)},
    {"bridge context", layout_of<BridgeShowData>("bridge"), {"bridge.context.flags"}, {{"bridge.context.features.more",
     0x40000}, {"bridge.context.last_notification", 0}}, rp_detail(L2FIB_OBJTYPE_BRIDGE)},
    {"bridge port context", layout_of<BridgePortContext>("port"), {"port.flags", "port.features.features",
     "port.features.more"}, {{"port.last_notification", 0}}, rp_detail(L2FIB_OBJTYPE_BRIDGE_PORT)},
    {"bridge MAC context", layout_of<BridgeMacShowData>("mac"), {"mac.context.flags"}, {},
     rp_detail(L2FIB_OBJTYPE_BRIDGE_MAC)},
    {"AC context, private", layout_of<AcShowData, NpEntry[2], BridgePortContext>("ac", "np_entry", "port"),
     {"ac.context.flags"}, {{"ac.np_count.count", 0x0102}, {"ac.context.service", 2}}, rp_private(L2FIB_OBJTYPE_AC)},
    {"PW context, private", layout_of<PwShowData>("pw"), {"pw.context.flags"}, {}, rp_private(L2FIB_OBJTYPE_MPLS)},
    {"next hop context, private", layout_of<NextHopContext, IgpPath[2]>("next_hop", "path"), {"path[0].state.flags",
     "path[0].primary.flags", "path[0].backup.flags", "path[1].state.flags", "path[1].primary.flags",
     "path[1].backup.flags"}, {{"next_hop.num_paths", 2}, {"path[0].state.flags+0", 0x40}},
     rp_private(L2FIB_OBJTYPE_NHOP)},
    {"bridge context, private", layout_of<BridgeShowData>("bridge"), {}, {}, rp_private(L2FIB_OBJTYPE_BRIDGE)},
    {"MAC scan", layout_of<MacScan>("scan"), {}, {}, mac_scan},
    {"MAC scan of one each", layout_of<MacScan>("scan"), {}, one_of_each(layout_of<MacScan>("scan")), mac_scan},
    xid_case("XID entry, AC", XidEntry::type_ac, {"xid.flags"}),
    xid_case("XID entry, bundle", XidEntry::type_bundle),
    xid_case("XID entry, bundle by flow", XidEntry::type_bundle, {}, {{"xid.flags+1", 0x22}}),
    xid_case("XID entry, PW", XidEntry::type_pw, {"xid.flags+0"}),
    xid_case("XID entry, PW type 5", XidEntry::type_pw_control_word, {}, {{"xid.flags+0", 0x60}}),
    {"bridge port entry", layout_of<Bport>("bport"), {"bport.entry.flags"}, {}, bport},
    {"bridge port entry, not virtual", layout_of<Bport>("bport"), {}, {{"bport.key.is_virtual", 0}}, bport},
    uidb_case("uIDB, ingress", 1, by_bit, {}),
    uidb_case("uIDB, ingress to a bridge", 1, fields_only, {Uidb::bd_lookup, Uidb::vpws_dest_pw, Uidb::cfm,
     Uidb::pre_tag_1_valid}),
    uidb_case("uIDB, ingress to a PW", 1, fields_only, {Uidb::vpws_dest_pw, Uidb::vpws_dest_lag, Uidb::punt_cdp_main}),
    uidb_case("uIDB, ingress to a LAG", 1, fields_only, {Uidb::vpws_dest_lag, Uidb::bng_vpws_pw_l2tp,
     Uidb::punt_stp_1ad_main}),
    uidb_case("uIDB, ingress to L2TP", 1, by_bit, {Uidb::group_selector, Uidb::bng_vpws_pw_l2tp,
     Uidb::punt_stp_1d_main}),
    uidb_case("uIDB, egress", 2, by_bit, {}),
    uidb_case("uIDB, egress with everything", 2, by_bit, {Uidb::group_selector, Uidb::cfm, Uidb::pre_tag_1_valid,
     Uidb::pre_tag_2_valid, Uidb::ipiw_mode, Uidb::bng_l2tp_mode}),
    {"bridge HAL context", layout_of<BridgeHalContext, BridgeHalNpEntry>("hal", "np"), {"hal.flags"}, {}, bridge_hal},
    {"bridge domain", layout_of<BridgeDomainRecord>("domain"), {"domain.flags"}, {}, bridge_domain},
    {"bridge domain, all flags", layout_of<BridgeDomainRecord>("domain"), {}, {{"domain.flags", 0xffffffff}},
     bridge_domain},
    {"bridge member", layout_of<BridgeMemberRecord>("member"), {"member.flags"}, {}, bridge_member},
    {"bridge member, EVPN OLE", layout_of<BridgeMemberRecord>("member"), {}, {{"member.flags+0", 0x28}},
     bridge_member},
    {"MAC", layout_of<BridgeMacShowData, MacEntry>("mac", "entry"), {"entry.flags"}, {}, mac},
};
// clang-format on

static std::string print(const RecordCase &c, Wire bytes)
{
    return printed([&] {
        Output out;
        c.print(out, bytes);
    });
}

/// The labels in a text that stand in front of another number than 0.
static std::string nonzero_labels(const std::string &text)
{
    std::istringstream cells(std::regex_replace(text, std::regex("\t+"), "\n"));
    std::string labels;
    for (std::string cell; std::getline(cells, cell);) {
        const std::size_t colon = cell.find(':');
        if (colon != std::string::npos && cell.find_first_not_of(" 0x", colon + 1) != std::string::npos) {
            const std::size_t first = cell.find_first_not_of(' ');
            labels += labels.empty() ? "" : ", ";
            labels += cell.substr(first, cell.find_last_not_of(' ', colon - 1) + 1 - first);
        }
    }
    return labels;
}

/// The items of the flag list in a text, on one line; without such a list, the numbers that may be flags.
static std::string flag_items(const std::string &text)
{
    const std::string label = "Flags: ";
    if (text.find(label) == std::string::npos) {
        return nonzero_labels(text);
    }
    std::istringstream lines(text.substr(text.find(label) + label.size()));
    std::string items;
    for (std::string line; std::getline(lines, line);) {
        items += items.empty() ? "" : " ";
        items += line.substr(std::min(line.find_first_not_of(' '), line.size()));
        if (!line.ends_with(',')) {
            break;
        }
    }
    return items;
}

TEST(Records, FieldsByTheirBytes)
{
    std::string text;
    for (const RecordCase &c : record_cases) {
        text += std::string("== ") + c.name + "\n" + print(c, c.layout.numbers_with(c.values)) + "\n";
    }
    expect_golden("record-fields.txt", text);
}

/// Every bit set: which numbers are signed, and how wide they are.
TEST(Records, FieldsOfAllBits)
{
    std::string text;
    for (const RecordCase &c : record_cases) {
        text += std::string("== ") + c.name + "\n" + print(c, c.layout.filled_with(c.values, 0xff)) + "\n";
    }
    expect_golden("record-all-bits.txt", text);
}

TEST(Records, FlagsByTheirBits)
{
    std::ostringstream text;
    for (const RecordCase &c : record_cases) {
        const Wire base = c.layout.filled_with(c.values);
        const std::string none = flag_items(print(c, base));
        Wire all = base;
        for (const std::string &flags : c.flags) {
            const BufferField field = c.layout.field(flags);
            for (std::size_t byte = field.offset; byte < field.offset + field.width; ++byte) {
                all[byte] = 0xff;
                for (unsigned mask = 0x80; mask != 0; mask >>= 1) {
                    Wire bytes = base;
                    bytes[byte] = static_cast<std::uint8_t>(bytes[byte] | mask);
                    const std::string items = flag_items(print(c, bytes));
                    if (items != none) {
                        text << c.name << ", byte " << byte << " 0x" << std::hex << std::setfill('0') << std::setw(2)
                             << mask << std::dec << ": " << items << '\n';
                    }
                }
            }
        }
        text << c.name << ", none: " << none << '\n' << c.name << ", all: " << flag_items(print(c, all)) << '\n';
    }
    expect_golden("record-flags.txt", text.str());
}

} // namespace l2fib
