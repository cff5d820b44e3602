// Captures as lines of JSON, and what shows of the router that they came from.
#include "client/capture_reader.h"
#include "client/capture_writer.h"
#include "tests/support/printed.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace l2fib
{

TEST(Capture, LinesKeepEverything)
{
    const std::string line =
        R"({"object":"ac","node":3,"card":"0x1e1005","direction":"egress","view":"private","byte_order":"big",)"
        R"("monotonic_seconds":7,"wall_seconds":1763900000,"time_zone":"CET-1CEST,M3.5.0,M10.5.0/3","virtual_interfaces":["0x20","0x30"],)"
        R"("show_data":"00ff10"})";
    const CaptureLine parsed = parse_capture(line);
    ASSERT_EQ(parsed.error, "");
    EXPECT_EQ(format_capture(parsed.capture), line);
}

TEST(Capture, OnlyTheObjectAndItsShowDataAreNeeded)
{
    const CaptureLine parsed =
        parse_capture(R"( {"show_data":"00","remark":{"card":[1,{"node":2,"node":1e400}]},"remark":-1e-5000,"x":)" +
                      std::string(400, '9') +
                      ",\r\t\"card\":1970180,\"object\":\"nhop\",\"node\":\"0xffffffff\",\"virtual_interfaces\":[9]} ");
    ASSERT_EQ(parsed.error, "");
    EXPECT_EQ(format_capture(parsed.capture),
              R"({"object":"nhop","node":4294967295,"card":"0x1e1004","direction":"ingress","view":"private",)"
              R"("time_zone":"UTC0","virtual_interfaces":["0x9"],"show_data":"00"})");
}

TEST(Capture, BrokenLines)
{
    const struct {
        std::string line;
        const char *error;
    } cases[] = {
        {R"({"object":"ac","show_data":"00")", "broken JSON at byte 32"},
        {"\x7f\x45LF", "broken JSON at byte 1"},
        {R"({"object":"ac","show_data":"00"} {})", "broken JSON at byte 34"},
        {"{\"object\":\"ac\",\"show_data\":\"\xff\"}", "broken JSON at byte 29"},
        {"[]", "no JSON object"},
        {"17", "no JSON object"},
        {std::string(100'000, '['), "no JSON object"},
        {R"({"object":"ac"})", "no show_data"},
        {R"({"show_data":"0011","object":"ac")", "broken JSON at byte 34"},
        {R"({"note":{"show_data":"00"},"object":"ac","show_data":"0"})", "show_data: not pairs of hex digits"},
        {R"({"x":{"show_data":"ab"},"object":"ac","show_data":"*"})", "show_data: not pairs of hex digits"},
        {R"({"note":"show_data","object":"ac","show_data": 5})", "show_data: a text is needed"},
        {R"({"object":"ac","show_data":"\u0030"})", "show_data: not pairs of hex digits"},
        {R"({"object":"ac","show_data":"*"})", "show_data: not pairs of hex digits"},
        {R"({"show_data":"00"})", "no object"},
        {R"({"object":"mac","show_data":"00","show_data":"11"})", "show_data: given twice"},
        {R"({"node":1,"\u006eode":1,"object":"mac","show_data":"00"})", "node: given twice"},
        {R"({"node":1e400,"object":"mac","show_data":"00"})", "node: a whole number is needed"},
        {R"({"object":"mac",)"
         "\t\"a\tb\":1}",
         "broken JSON at byte 20"},
        {"{\"a\":\"\\\"\tb\"}", "broken JSON at byte 9"},
        {R"({"object":"vlan\n","show_data":"00"})", R"(object: unknown 'vlan\x0a')"},
        {R"({"object":2})", "object: a text is needed"},
        {R"({"object":{"name":"ac"}})", "object: a text is needed"},
        {R"({"object":["ac"]})", "object: a text is needed"},
        {R"({"show_data":"0"})", "show_data: not pairs of hex digits"},
        {R"({"show_data":"0x00"})", "show_data: not pairs of hex digits"},
        {R"({"node":-1})", "node: a whole number is needed"},
        {R"({"node":1.5})", "node: a whole number is needed"},
        {R"({"node":99999999999999999999999})", "node: a whole number is needed"},
        {R"({"node":4294967296})", "node: number above 4294967295"},
        {R"({"node":"0x"})", "node: no number: '0x'"},
        {R"({"node":[1]})", "node: a whole number is needed"},
        {R"({"virtual_interfaces":1})", "virtual_interfaces: an array of numbers is needed"},
        {R"({"virtual_interfaces":[[1]]})", "virtual_interfaces: an array of numbers is needed"},
        {R"({"view":"raw"})", "view: unknown 'raw'"},
        {R"({"direction":"both"})", "direction: unknown 'both'"},
        {R"({"byte_order":"host"})", "byte_order: unknown 'host'"},
        {R"({"time_zone":":/etc/passwd"})", "time_zone: no time zone: ':/etc/passwd'"},
        {R"({"object":"ac","show_data":"00","wall_seconds":1})",
         "one of monotonic_seconds and wall_seconds without the other"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(parse_capture(c.line).error, c.error) << c.line.substr(0, 80);
    }
}

TEST(Capture, LinesSayAfterOthersWhatTheySayAlone)
{
    const std::string front = R"({"object":"ac","node":1,"virtual_interfaces":["0x9"],"show_data":")";
    const std::string remark = R"({"object":"mac","remark":")" + std::string(5000, 'x') + R"(","show_data":")";
    const std::string lines[] = {
        front + "00\"}",
        front + "0102fF\"}",
        front + "abc\"}",
        front + "\"}",
        front + "00",
        front,
        front + R"(00","remark":"11"})",
        front + R"(22","remark":"11"})",
        front + R"(22","show\u005fdata":"11"})",
        front + R"(00"} {})",
        front + R"(00","show_data":"11"})",
        front + R"(00","x":{"show_data":"11"}})",
        R"({"x":{"show_data":"11"},"object":"mac","show_data":"22"})",
        R"({"x":{"show_data":"33"},"object":"mac","show_data":"22"})",
        R"({"x":{"show_data":"33"},"object":"mac"})",
        R"({"x":"show_data","object":"mac","show_data":"44"})",
        R"({"x":"\"show_data\":\"55\"","object":"mac","show_data":"44"})",
        R"({"x\"show_data":"55","object":"mac","show\u005fdata":"66"})",
        R"({"show_data": "66", "object": "mac"})",
        R"({"show_data" : "77", "object": "mac"})",
        R"({"show_data":)",
        remark + "00\"}",
        remark + "11\"}",
    };
    const auto said = [](CaptureLine &read) {
        if (!read.error.empty()) {
            return Shown{read.error};
        }
        const bool is_empty = read.capture.show_data.empty(); // which is shown as none, whatever came before
        return is_empty ? shown([&] { return read.capture.show(); }) : Shown{format_capture(read.capture)};
    };
    for (const std::string &before : lines) {
        for (const std::string &line : lines) {
            CaptureReader reader;
            reader.read(before);
            CaptureLine alone = parse_capture(line);
            EXPECT_EQ(said(reader.read(line)), said(alone)) << before << '\n' << line;
        }
    }
    EXPECT_EQ(CaptureReader().read(lines[0]).capture.show_data, std::vector<std::uint8_t>{0});
}

TEST(Capture, MoreFramesThanAreKept)
{
    CaptureReader reader;
    for (unsigned node = 0; node < 600; ++node) {
        const std::string line = R"({"object":"mac","node":)" + std::to_string(node % 400) + R"(,"show_data":"0a"})";
        const CaptureLine &read = reader.read(line);
        EXPECT_EQ(read.capture.node, node % 400);
        EXPECT_EQ(read.capture.show_data, std::vector<std::uint8_t>{10});
    }
}

TEST(Capture, TimesAreThoseOfItsRouter)
{
    std::vector<std::uint8_t> port(2588);
    port[120 + 3] = 0x02; // a stamp of 2^33 nanoseconds: 8 seconds after the router's start
    const auto shown_in = [&](const char *zone, std::uint64_t wall_seconds) {
        Capture capture;
        capture.object = row_named(objects(), "bridge-port");
        capture.router.clocks = Clocks{100, wall_seconds};
        capture.router.time_zone = zone;
        capture.show_data = port;
        return printed([&] { capture.show(); });
    };
    setenv("TZ", "HST10", 1); // the machine's own, which must not matter
    EXPECT_NE(shown_in("<+0530>-5:30", 1'763'900'092).find("sent at: 11/23/2025 17:43:20"), std::string::npos);
    EXPECT_NE(shown_in("UTC0", 1'763'900'092).find("sent at: 11/23/2025 12:13:20"), std::string::npos);
    EXPECT_NE(shown_in("CET-1CEST,M3.5.0,M10.5.0/3", 1'753'900'092).find("sent at: 07/30/2025 20:26:40"),
              std::string::npos);
}

TEST(Capture, VirtualInterfacesAreThoseOfItsRouter)
{
    std::vector<std::uint8_t> unbound_ac(106 + 200);
    unbound_ac[1] = 1;
    unbound_ac[13] = 3;    // unbound
    unbound_ac[17] = 0x40; // its interface
    Capture capture;
    capture.object = row_named(objects(), "ac");
    capture.show_data = unbound_ac;
    std::uint32_t status = 0;
    printed([&] { status = capture.show(); });
    EXPECT_NE(status, 0U); // the hardware part is looked for, and there is none

    capture.show_data = unbound_ac;
    capture.router.virtual_interfaces = {0x30, 0x40};
    printed([&] { status = capture.show(); });
    EXPECT_EQ(status, 0U);
}

TEST(TimeZones, OnlyThoseThatPosixDescribes)
{
    for (const char *zone : {"UTC0", "EST5EDT", "<-03>3", "CET-1CEST,M3.5.0,M10.5.0/3", "EST+5EDT,J60/2:30,300"}) {
        EXPECT_TRUE(is_time_zone(zone)) << zone;
    }
    const std::string longest = "<-1234>-100:00:00<+1234>+100:00:00,M10.5.0/+100:00:00,J1/-2:0:00";
    EXPECT_TRUE(is_time_zone(longest) && !is_time_zone(longest + "0")) << longest.size();
    for (const char *zone : {"", "UTC", "Europe/Berlin", "/etc/localtime", ":UTC0", "../../dev/zero", "UTC0\n"}) {
        EXPECT_FALSE(is_time_zone(zone)) << zone;
    }
    EXPECT_TRUE(is_time_zone(local_time_zone()));
}

} // namespace l2fib
