#include "examples/show_data_builder.h"
#include "hw/mac_handler.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

static Shown show(const std::vector<std::uint8_t> &bytes)
{
    return shown_hardware(1, L2FIB_OBJTYPE_BRIDGE_MAC, 1, bytes);
}

TEST(MacHandler, FlagsThatAreShown)
{
    BridgeMacShowData mac{};
    set(mac.entry.flags.word, 0xffffffff);
    const std::string text = show(ShowDataBuilder{}.add(mac).bytes()).text;
    const std::size_t at = text.find("\n    Flags");
    EXPECT_EQ(text.substr(at, text.find("\n    BVI") - at), R"(
    Flags: Remote MAC, My B-SA, EVPN, Filter, Static MAC, Global XID, Learned Local,
           BVI, Port Level MAC Limit, MAC Security, Remote Rack, EVPN MH Dest,
           EVPN SHG label)");

    set(mac.entry.flags.word, 0x00cc7fff);
    set(mac.entry.ldi, 0xffff);
    EXPECT_EQ(show(ShowDataBuilder{}.add(mac).bytes()), Shown{R"(
  MAC: 0000.0000.0000 
  Bridge Learn Key: 0, Port Learn Key: 0
    Flags: None
    BVI TCAM index: 0, BD learn key: 0, XID learn key: 0, Learn Limit Count Index: 0,
    ESI: 0, LDI: 65535, EVPN Label: 0, Learned VLAN: 0
    )"});
}

TEST(MacHandler, ShowDataThatIsShortOrMissing)
{
    const std::string failure = "\n  zel_l2fib_trident_print_internal_detail: print handler failed for objtype 14 : ";
    EXPECT_EQ(
        show(std::vector<std::uint8_t>(171)),
        (Shown{"\n  data_size is 171, expecting at least 172" + failure + "status 0x46258800", L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_internal_detail(1, 14, 1, 1, 1, nullptr, 0); }),
              (Shown{"\n  zel_l2fib_mac_print_handler: Null arguments rcvd" + failure + "status 0x46258e00",
                     L2FIB_SHOW_ERR_ARGS}));
}

} // namespace l2fib
