// The entries that an NP holds: cross-connect, bridge port and uIDB.
#include "examples/show_data_builder.h"
#include "hw/bport_entry.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

static std::string xid_text(XidEntry entry)
{
    return printed([&] {
        Output out;
        EXPECT_EQ(zel_l2fib_print_xid_entry(out, 0, 0x12, &entry), 0U);
    });
}

TEST(XidEntry, Pseudowire)
{
    XidEntry entry{};
    set(entry.type, XidEntry::type_pw_control_word);
    set(entry.remote_type, 7);
    set(entry.vpn_id, 0xab);
    set(entry.virtual_port, 0xcd);
    set(entry.disposition_label, 16001);
    set(entry.imposition_label, 16002);
    set(entry.nh_index, -1);
    set(entry.tunnel_interface, 0x100);
    set(entry.shg, 7);
    EXPECT_EQ(xid_text(entry), R"(
Xconnect ID: 0x00000012
  Type: Pseudowire (with control word), Remote type: Unknown
  Flags: Type 5
  
  VPN Id: 0xab , SVP Index: 0xcd , DVP Index: 0xcd 
  h/w disp_vc_label: 16001 , h/w imp_vc_label: 16002 , control_word_enabled: 1 ,
  nh_index: -1 , bcm_tunnel_if: 256 
  Split Horizon Group: 7)");
}

TEST(XidEntry, BundleHashesByFlowOrByXid)
{
    XidEntry entry{};
    set(entry.type, XidEntry::type_bundle);
    EXPECT_NE(xid_text(entry).find("LAG ID: 0, EFP egress hash: XID value based, value = 1\n"), std::string::npos);
    set_flags(entry.flags, {XidEntry::load_balance_flow_based, XidEntry::pw_vc_type_4});
    EXPECT_NE(xid_text(entry).find("LAG ID: 0, EFP egress hash: Flow Based\n"), std::string::npos);
    EXPECT_EQ(xid_text(entry).find("Type 4"), std::string::npos);
}

TEST(XidEntry, VplsLineNamesWhatIsNotZero)
{
    XidEntry entry{};
    set(entry.type, 10);
    set_flags(entry.flags, {XidEntry::vpls, XidEntry::multicast_storm_control});
    EXPECT_EQ(xid_text(entry), R"(
Xconnect ID: 0x00000012
  Type: VNI
  Flags: Multicast storm control, VPLS
  Bridge Domain ID: 0
  Storm Control enabled for: Multicast
  Split Horizon Group: None)");

    set(entry.learn_count_limit, -2);
    set(entry.learn_count_pointer, 0xf);
    set(entry.msti, 3);
    EXPECT_NE(xid_text(entry).find(R"(
  Bridge Domain ID: 0, Learn Count Limit: -2, Learn Count Pointer: 0x00000f,
  msti: 3
)"),
              std::string::npos);
}

TEST(XidEntry, MissingEntryIsReportedByItsHandler)
{
    EXPECT_EQ(shown([] {
                  Output out;
                  const std::uint32_t status = zel_l2fib_print_xid_entry(out, 1, 0x12, nullptr);
                  report_xid_failure(out, 2, "the_handler", 0x12, status);
                  return status;
              }),
              (Shown{"\n  zel_l2fib_print_xid_entry: Failed with null args"
                     "\n    the_handler: Failed to print HW entry xid: 0x12 - status 0x46258e00",
                     L2FIB_SHOW_ERR_ARGS}));
}

TEST(BportEntry, FlagsAndMissingEntry)
{
    Bport bport{};
    set(bport.key.bridge_id, 5);
    set(bport.key.port_id, -3);
    set(bport.entry.flags.word, 0x41000000);
    set(bport.entry.xid, 0xbeef);
    EXPECT_EQ(printed([&] {
                  Output out;
                  zel_l2fib_print_bport_entry(out, 1, &bport.key, &bport.entry);
                  zel_l2fib_print_bport_entry(out, 1, &bport.key, nullptr);
              }),
              "\n  Bridge Port     :  Bridge 5 Port -3 \n    Flags: IRL Bport\n    XID: 0x0000beef");
}

static Shown uidb_shown(UidbEntry entry, std::uint32_t direction, std::uint32_t service = 2)
{
    return shown([&] {
        Output out;
        return zel_l2fib_print_uidb_entry(out, 0, direction, service, &entry);
    });
}

/// A line of a uIDB entry, by how it begins.
static std::string uidb_line(const UidbEntry &entry, std::uint32_t direction, const std::string &begin)
{
    const std::string text = uidb_shown(entry, direction).text;
    const std::size_t at = text.find("\n  " + begin);
    return at == std::string::npos ? "" : text.substr(at + 3, text.find('\n', at + 1) - at - 3);
}

TEST(UidbEntry, DestinationByTheFirstFlagThatHolds)
{
    const struct {
        std::vector<UidbFlag> flags;
        const char *line;
    } cases[] = {
        {{UidbEntry::bd_lookup, UidbEntry::vpws_dest_pw}, "VPLS XID: 0x00000c1d, SHG: Enabled, Bridge Domain: 9"},
        {{UidbEntry::vpws_dest_pw, UidbEntry::vpws_dest_lag}, "Dest XID: 0x00000c1d"},
        {{UidbEntry::vpws_dest_lag, UidbEntry::bng_vpws_pw_l2tp},
         "LAG dest XID: 0x00000c1d, LAG ptr: 0x0abc, LB Hash: 0x0e"},
        {{UidbEntry::bng_vpws_pw_l2tp}, "L2TP Session ID: 0x00000077"},
        {{}, "Local Switch dest XID: 0x00000c1d"},
    };
    for (const auto &c : cases) {
        UidbEntry entry{};
        for (const UidbFlag flag : c.flags) {
            set_flags(entry, {flag});
        }
        set(entry.destination_xid, 0xc1d);
        set(entry.shg, 2);
        set(entry.bridge_domain, 9);
        set(entry.lag_pointer, 0xabc);
        set(entry.load_balance_hash, 0xe);
        set(entry.l2tp_session, 0x77);
        EXPECT_EQ(uidb_line(entry, 1, c.line), c.line);
    }
}

TEST(UidbEntry, LinesThatAFlagSwitches)
{
    UidbEntry entry{};
    set(entry.cfm_threshold, 4);
    set(entry.mstp_default_ifhandle, 0xabcd);
    set(entry.lns_session, 1);
    set(entry.lns_tunnel, 2);
    set(entry.pppoe_session, 3);
    set(entry.tos, 0x10);
    entry.mac = {0x02, 0, 0, 0, 0, 0x01};
    EXPECT_EQ(uidb_line(entry, 1, "UIDB IF"), "UIDB IF Handle: 0x00000000, Source Port: 0, Num VLANs: 0");
    EXPECT_EQ(uidb_line(entry, 2, "Stats"), "Stats ptr: 0x000000");
    for (const char *begin : {"CFM", "IP IW", "LNS"}) {
        EXPECT_EQ(uidb_line(entry, 2, begin), "");
    }
    set_flags(entry, {UidbEntry::punt_stp_1ad_main, UidbEntry::cfm, UidbEntry::ipiw_mode, UidbEntry::bng_l2tp_mode,
                      UidbEntry::group_selector});
    EXPECT_EQ(uidb_line(entry, 1, "UIDB IF"),
              "UIDB IF Handle: 0x00000000, MSTP Default IF Handle: 0x0000abcd, Source Port: 0,");
    EXPECT_EQ(uidb_line(entry, 1, "CFM"), "CFM threshold: 4");
    EXPECT_EQ(uidb_line(entry, 2, "CFM"), "CFM Threshold: 4");
    EXPECT_EQ(uidb_line(entry, 2, "uIDB"), "uIDB index: 0x0000, Stats ptr: 0x000000");
    EXPECT_EQ(uidb_line(entry, 2, "IP IW"), "IP IW MAC: 0200.0000.0001");
    EXPECT_EQ(uidb_line(entry, 2, "LNS"), "LNS Session ID: 0x0001, LNS Tunnel ID: 0x0002, "
                                          "PPPoE Session ID: 0x0003 MAC: 0200.0000.0001,");
    EXPECT_EQ(uidb_line(entry, 2, "PPP COS"), "PPP COS: 0x00, TOS: 0x10");
}

TEST(UidbEntry, Failures)
{
    UidbEntry unreadable{};
    set(unreadable.retrieval_status, 0x1234);
    const Shown reported{"\nERROR: Failed to retrieve UIDB: status 0x00001234", 0x1234};
    EXPECT_EQ(uidb_shown(unreadable, 1, 0), reported);
    EXPECT_EQ(uidb_shown(unreadable, 2, 1), reported);
    EXPECT_EQ(uidb_shown(unreadable, 2, 0), Shown{""});
    EXPECT_EQ(uidb_shown({}, 3), (Shown{"\nEgress uIDB: ", L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(shown([] {
                  Output out;
                  return zel_l2fib_print_uidb_entry(out, 1, 1, 0, nullptr);
              }),
              (Shown{"\n  zel_l2fib_print_uidb_entry: Failed with null args", L2FIB_SHOW_ERR_ARGS}));
}

} // namespace l2fib
