#include "common/formatters.h"
#include "tests/support/golden.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <gtest/gtest.h>
#include <iomanip>

namespace l2fib
{

TEST(Formatters, ElapsedTimes)
{
    constexpr std::uint64_t ms = 1'000'000;
    constexpr std::uint64_t s = 1000 * ms;
    constexpr std::uint64_t day = 86'400 * s;
    std::ostringstream lines;
    for (const std::uint64_t ns :
         {std::uint64_t{0}, ms - 1, ms, 2 * s + 5 * ms, 30 * s, 59 * s + 999 * ms, 60 * s, 60 * s + ms, 90 * s,
          3599 * s, 3600 * s, day - s, day, 100 * day - s, 100 * day, UINT64_MAX}) {
        char text[16];
        const int length = zel_l2fib_print_elapsed(ns, text, sizeof text);
        EXPECT_EQ(length, static_cast<int>(std::strlen(text)));
        lines << std::setw(20) << ns << " ns: \"" << text << "\"\n";
    }
    expect_golden("elapsed-times.txt", lines.str());
}

TEST(Formatters, ElapsedTimeStaysInsideItsBuffer)
{
    char text[] = "zzzzzz";
    EXPECT_EQ(zel_l2fib_print_elapsed(60'000'000'000, text, 4), 8);
    EXPECT_STREQ(text, "1 m");
    EXPECT_STREQ(text + 4, "zz");
}

TEST(Formatters, SplitHorizonGroups)
{
    const struct {
        std::uint32_t group;
        const char *text;
    } cases[] = {{0, "None"}, {1, "VFI Enabled"}, {2, "Enabled"},
                 {7, "7"},    {0xffffffff, "-1"}, {0x80000000, "-2147483648"}};
    for (const auto &c : cases) {
        char text[12];
        EXPECT_EQ(zel_l2fib_get_shg_str(text, sizeof text, static_cast<int>(c.group)),
                  static_cast<int>(std::strlen(c.text)));
        EXPECT_STREQ(text, c.text);
    }
    char text[] = "zzzzz";
    for (const int no_room : {0, -1}) {
        EXPECT_EQ(zel_l2fib_get_shg_str(text, no_room, 2), 7);
        EXPECT_STREQ(text, "zzzzz");
    }
    zel_l2fib_get_shg_str(text, 3, 2);
    EXPECT_STREQ(text, "En");
}

TEST(Formatters, Addresses)
{
    const std::uint8_t mac[] = {0x00, 0x11, 0x22, 0x33, 0x44, 0xff};
    const std::uint32_t ip = 0x0a0000ff;
    EXPECT_EQ(printed([&] { EXPECT_EQ(print_mac(mac), 14); }), "0011.2233.44ff");
    EXPECT_EQ(printed([&] { EXPECT_EQ(print_ip(&ip), 10); }), "10.0.0.255");
}

TEST(Formatters, WordsAreReadWhole)
{
    const GuardedBytes words({0, 0, 0, 1, 0xfe, 0xdc, 0xba, 0x98});
    const struct {
        int length;
        const char *text;
    } cases[] = {{-1, "[0x]"}, {0, "[0x]"}, {1, "[0x00000001]"}, {4, "[0x00000001]"}, {5, "[0x00000001 fedcba98]"}};
    for (const auto &c : cases) {
        int count = 0;
        EXPECT_EQ(printed([&] { count = print_words(words.data(), c.length); }), c.text);
        EXPECT_EQ(count, static_cast<int>(std::strlen(c.text)));
    }
}

TEST(Formatters, StampsAreOnTheMonotonicClock)
{
    setenv("TZ", "UTC", 1);
    tzset();
    EXPECT_EQ(std::string_view(timestamp_text(std::uint64_t{0}).view()), "N/A");

    // A clock that started with the epoch makes the stamp a wall-clock time. Seconds are counted in 32 bits.
    constexpr std::uint64_t s = 1'000'000'000;
    const struct {
        std::uint64_t ahead_of_wall;
        std::uint64_t stamp;
        const char *text;
        const char *text_a_second_later;
    } cases[] = {
        {0, 1'700'000'000 * s + s - 1, "11/14/2023 22:13:20", "11/14/2023 22:13:21"},
        {10, 5 * s, "02/07/2106 06:28:11", "02/07/2106 06:28:12"},
        {0, ((std::uint64_t{1} << 32) + 5) * s, "01/01/1970 00:00:05", "01/01/1970 00:00:06"},
        {0, UINT64_MAX, "02/22/2010 21:41:29", "02/22/2010 21:41:30"},
    };
    for (const auto &c : cases) {
        test_platform.monotonic_seconds = static_cast<std::uint64_t>(std::time(nullptr)) + c.ahead_of_wall;
        const std::string text(timestamp_text(c.stamp).view());
        EXPECT_TRUE(text == c.text || text == c.text_a_second_later) << text;
    }
    test_platform = {};
}

} // namespace l2fib
