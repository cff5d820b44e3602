// Every field and every flag of the records, by the bytes that they lie in: a field that is read elsewhere, at another
// width or in another order, or a bit with another name, changes the text. The expected texts are in screens/.
#include "common/show_data.h"
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
    std::size_t size;
    std::vector<std::size_t> flag_bytes;
    std::vector<std::pair<std::size_t, std::uint8_t>> fixed; // bytes that decide what is shown, or would show a clock
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
    print_xid_entry(out, 0, 0x12, received<XidEntry>(bytes).to_host());
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
    print_bridge_member(out, 0, 0, {&received<BridgeMemberRecord>(bytes), 1}, 7);
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
    RecordCase c{name, sizeof(UidbEntry), {}, {{0, 0}, {1, 0}, {2, 0}, {3, 0}}, uidb_entry(direction)};
    for (std::size_t byte = offsetof(UidbEntry, flags); byte < offsetof(UidbEntry, unread_119); ++byte) {
        if (bits == by_bit) {
            c.flag_bytes.push_back(byte);
        }
        std::uint8_t value = 0;
        for (const UidbFlag flag : flags) {
            value |= flag.byte == byte ? flag.mask : std::uint8_t{0};
        }
        c.fixed.emplace_back(byte, value);
    }
    return c;
}

using Uidb = UidbEntry;

static const std::vector<RecordCase> record_cases = {
    {"AC context", sizeof(AcShowData), {66, 67, 68, 69}, {{6, 0}, {7, 0}, {8, 0}, {9, 4}}, rp_detail(2)},
    {"PW context", sizeof(PwShowData), {216, 217, 218, 219}, {{4, 0}, {5, 0}, {6, 0}, {7, 2}}, rp_detail(3)},
    {"bridge context",
     sizeof(BridgeShowData),
     {154, 155, 156, 157},
     {{119, 0x04}, {514, 0}, {515, 0}, {516, 0}, {517, 0}, {518, 0}, {519, 0}, {520, 0}, {521, 0}},
     rp_detail(11)},
    {"bridge port context",
     sizeof(BridgePortContext),
     {32, 33, 34, 35, 76, 77, 78, 79, 80, 81, 82, 83},
     {{120, 0}, {121, 0}, {122, 0}, {123, 0}, {124, 0}, {125, 0}, {126, 0}, {127, 0}},
     rp_detail(13)},
    {"bridge MAC context", sizeof(BridgeMacShowData), {8, 9, 10, 11}, {}, rp_detail(14)},
    {"AC context, private",
     sizeof(AcShowData) + 2 * np_entry_size + sizeof(BridgePortContext),
     {66, 67, 68, 69},
     {{0, 1}, {1, 2}, {6, 0}, {7, 0}, {8, 0}, {9, 2}},
     rp_private(2)},
    {"PW context, private", sizeof(PwShowData), {216, 217, 218, 219}, {}, rp_private(3)},
    {"next hop context, private",
     sizeof(NextHopContext) + 2 * sizeof(IgpPath),
     {25880, 25900, 25908, 25916, 25936, 25944},
     {{70, 0}, {71, 2}, {25880, 0x40}},
     rp_private(6)},
    {"bridge context, private", sizeof(BridgeShowData), {}, {}, rp_private(11)},
    {"MAC scan", sizeof(MacScan), {}, {}, mac_scan},
    {"XID entry, AC", sizeof(XidEntry), {16, 17, 18, 19}, {{24, 0}, {25, 0}, {26, 0}, {27, 1}}, xid_entry},
    {"XID entry, bundle", sizeof(XidEntry), {}, {{24, 0}, {25, 0}, {26, 0}, {27, 2}}, xid_entry},
    {"XID entry, bundle by flow", sizeof(XidEntry), {}, {{17, 0x22}, {24, 0}, {25, 0}, {26, 0}, {27, 2}}, xid_entry},
    {"XID entry, PW", sizeof(XidEntry), {16}, {{24, 0}, {25, 0}, {26, 0}, {27, 3}}, xid_entry},
    {"XID entry, PW type 5", sizeof(XidEntry), {}, {{16, 0x60}, {24, 0}, {25, 0}, {26, 0}, {27, 4}}, xid_entry},
    {"bridge port entry", sizeof(Bport), {16, 17, 18, 19}, {}, bport},
    {"bridge port entry, not virtual", sizeof(Bport), {}, {{2, 0}}, bport},
    uidb_case("uIDB, ingress", 1, by_bit, {}),
    uidb_case("uIDB, ingress to a bridge", 1, fields_only,
              {Uidb::bd_lookup, Uidb::vpws_dest_pw, Uidb::cfm, Uidb::pre_tag_1_valid}),
    uidb_case("uIDB, ingress to a PW", 1, fields_only, {Uidb::vpws_dest_pw, Uidb::vpws_dest_lag, Uidb::punt_cdp_main}),
    uidb_case("uIDB, ingress to a LAG", 1, fields_only,
              {Uidb::vpws_dest_lag, Uidb::bng_vpws_pw_l2tp, Uidb::punt_stp_1ad_main}),
    uidb_case("uIDB, ingress to L2TP", 1, by_bit,
              {Uidb::group_selector, Uidb::bng_vpws_pw_l2tp, Uidb::punt_stp_1d_main}),
    uidb_case("uIDB, egress", 2, by_bit, {}),
    uidb_case("uIDB, egress with everything", 2, by_bit,
              {Uidb::group_selector, Uidb::cfm, Uidb::pre_tag_1_valid, Uidb::pre_tag_2_valid, Uidb::ipiw_mode,
               Uidb::bng_l2tp_mode}),
    {"bridge HAL context", sizeof(BridgeHalContext) + sizeof(BridgeHalNpEntry), {4}, {}, bridge_hal},
    {"bridge domain", sizeof(BridgeDomainRecord), {0, 1, 2, 3}, {}, bridge_domain},
    {"bridge domain, all flags",
     sizeof(BridgeDomainRecord),
     {},
     {{0, 255}, {1, 255}, {2, 255}, {3, 255}},
     bridge_domain},
    {"bridge member", sizeof(BridgeMemberRecord), {4, 5, 6, 7}, {}, bridge_member},
    {"bridge member, EVPN OLE", sizeof(BridgeMemberRecord), {}, {{4, 0x28}}, bridge_member},
    {"MAC", sizeof(BridgeMacShowData) + sizeof(MacEntry), {116, 117, 118, 119}, {}, mac},
};

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

static Wire with_fixed(const RecordCase &c, Wire bytes)
{
    for (const auto &[offset, value] : c.fixed) {
        bytes[offset] = value;
    }
    return bytes;
}

TEST(Records, FieldsByTheirBytes)
{
    std::string text;
    for (const RecordCase &c : record_cases) {
        Wire bytes(c.size);
        for (std::size_t i = 0; i < c.size; ++i) {
            bytes[i] = static_cast<std::uint8_t>(i % 251 + 1);
        }
        text += std::string("== ") + c.name + "\n" + print(c, with_fixed(c, bytes)) + "\n";
    }
    expect_golden("record-fields.txt", text);
}

TEST(Records, FlagsByTheirBits)
{
    std::ostringstream text;
    for (const RecordCase &c : record_cases) {
        const Wire base = with_fixed(c, Wire(c.size));
        const std::string none = flag_items(print(c, base));
        Wire all = base;
        for (const std::size_t byte : c.flag_bytes) {
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
        text << c.name << ", none: " << none << '\n' << c.name << ", all: " << flag_items(print(c, all)) << '\n';
    }
    expect_golden("record-flags.txt", text.str());
}

} // namespace l2fib
