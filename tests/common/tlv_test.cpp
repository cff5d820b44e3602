// Streams of type-length-value records, sound and not.
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <iomanip>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;

static Wire operator+(Wire one, const Wire &other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

static Wire number(std::uint8_t value, std::uint8_t verdict = 1)
{
    return {1, 7, verdict, 0, 0, 0, value};
}
static Wire hex(std::uint8_t value, std::uint8_t verdict = 1)
{
    return {2, 7, verdict, 0xab, 0, 0, value};
}
static Wire text(const std::string &string, std::uint8_t verdict = 1)
{
    const Wire header{3, static_cast<std::uint8_t>(4 + string.size()), verdict};
    return header + Wire(string.c_str(), string.c_str() + string.size() + 1);
}
static const Wire end_line{4, 3, 0};
static const Wire end_stream{5, 3, 0};

/// A stream, and where it was left.
struct Printed {
    Shown shown;
    std::uint64_t consumed = 0;
    std::uint64_t remaining = 0;
};

static Printed print(std::uint32_t level, const Wire &stream)
{
    const GuardedBytes data(stream);
    std::uint8_t *cursor = data.data();
    Printed result;
    result.remaining = data.size();
    result.shown = shown([&] { return zel_l2fib_print_tlv(level, &cursor, &result.remaining); });
    result.consumed = static_cast<std::uint64_t>(cursor - data.data());
    return result;
}

/// A stream, what it prints and what it leaves.
static std::string entry(std::uint32_t level, const Wire &stream)
{
    std::ostringstream text;
    const Printed printed = print(level, stream);
    text << "== level " << level << ", " << stream.size() << " bytes, " << printed.remaining << " left:" << std::hex
         << std::setfill('0');
    for (const unsigned byte : stream) {
        text << ' ' << std::setw(2) << byte;
    }
    EXPECT_EQ(printed.consumed + printed.remaining, stream.size());
    text << '\n' << printed.shown << '\n';
    return text.str();
}

// clang-format off
TEST(Tlv, Streams)
{
    const struct {
        std::uint32_t level;
        Wire stream;
    } cases[] = {
        {1, {}},
        {1, end_stream + number(1)}, // what follows the stream is left alone
        {0, number(7) + hex(8) + text("up") + end_line},
        {1, number(7, 3) + end_line},
        {1, number(7, 2) + end_line + end_line},
        {1, number(7, 4) + end_line + number(8) + end_line},
        {0, number(7, 3) + number(7, 1) + number(7, 4) + end_line},
        {0, number(7, 3) + number(7, 1) + end_line},
        {1, number(7, 0) + end_line},
        {1, number(7, 5) + end_line},
        {0, text(std::string(71, 'x'), 2) + end_line},
        {0, text(std::string(72, 'x'), 2) + end_line},
        {0, text(std::string(100, 'x'), 2) + end_line},
        {2, text("") + number(1) + end_stream},
        {1, end_line + number(1)},
        {0, Wire{4, 5, 9, 9, 9} + text("on") + Wire{5, 4, 0, 0}},
    };
    std::string text;
    for (const auto &c : cases) {
        text += entry(c.level, c.stream);
    }
    expect_golden("tlv.txt", text);
}

/// Behind a good record, which is printed, and by themselves.
TEST(Tlv, Errors)
{
    const Wire cases[] = {
        {6}, {6, 0}, {6, 3, 0}, {1}, {1, 7}, {4, 3}, {1, 8, 1, 0, 0, 0, 0}, {1, 0, 1, 0, 0, 0, 0}, {4, 1, 1}, {5, 2, 1},
        {1, 6, 1, 0, 0, 0, 7}, {2, 3, 1, 0, 0, 0, 7}, {3, 3, 1, 0}, {3, 5, 1, 'u', 'p', 0}, {0, 3, 1}, {7, 3, 1},
        {255, 255, 1}, {0, 2, 1}, {0, 0, 0}, {255, 0, 1}, {5, 0, 1}, {3, 2, 1}, {0, 4, 1}, {0},
    };
    std::string text;
    for (const Wire &bad : cases) {
        text += entry(1, bad) + entry(1, number(1) + bad);
    }
    text += entry(1, number(1) + end_line + Wire{6, 3, 0});
    expect_golden("tlv-errors.txt", text);
}
// clang-format on

TEST(Tlv, LongStreamsEnd)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const Printed printed = print(0, Wire(65536, static_cast<std::uint8_t>(byte)));
        EXPECT_EQ(printed.shown.status, byte == 4 || byte == 5 ? 0 : L2FIB_SHOW_ERR_DATA) << byte;
    }
}

TEST(Tlv, NullArguments)
{
    std::uint8_t byte = 5;
    std::uint8_t *cursor = &byte;
    std::uint8_t *none = nullptr;
    std::uint64_t remaining = 1;
    std::uint64_t nothing = 0;
    EXPECT_EQ(shown([&] { return zel_l2fib_print_tlv(1, nullptr, &remaining); }), (Shown{"", L2FIB_SHOW_ERR_ARGS}));
    EXPECT_EQ(shown([&] { return zel_l2fib_print_tlv(1, &cursor, nullptr); }), (Shown{"", L2FIB_SHOW_ERR_ARGS}));
    EXPECT_EQ(shown([&] { return zel_l2fib_print_tlv(1, &none, &remaining); }), (Shown{"", L2FIB_SHOW_ERR_ARGS}));
    EXPECT_EQ(shown([&] { return zel_l2fib_print_tlv(1, &none, &nothing); }), Shown{""});
}

TEST(Inconsistency, TheHardwaresReportFollowsTheRps)
{
    const Wire rp = number(1) + end_line + end_stream;
    const Wire hardware = number(2) + end_line + end_stream;
    const auto report = [](const Wire &stream) {
        const GuardedBytes data(stream);
        return shown([&] {
            return zel_l2fib_print_internal(L2FIB_OBJTYPE_AC, 0, 1, L2FIB_VIEW_INCONSISTENT, data.data(), data.size());
        });
    };
    EXPECT_EQ(report(rp + hardware), Shown{"\n  1 \n    2 \n"});
    EXPECT_EQ(report(rp), Shown{"\n  1 \n"});
    EXPECT_EQ(report({}), Shown{"\n"});
    EXPECT_EQ(report(number(1) + Wire{6}),
              (Shown{"\n  1 \n  ERROR: Output has been truncated!\n", L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(report(rp + Wire{6}), (Shown{"\n  1 \n    ERROR: Output has been truncated!\n", L2FIB_SHOW_ERR_DATA}));
}

} // namespace l2fib
