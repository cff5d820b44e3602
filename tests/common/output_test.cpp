// The output unit: what printf would print, wherever in its buffer the text comes to lie, and in order with stdio.
#include "common/output.h"
#include "tests/support/printed.h"

#include <gtest/gtest.h>

namespace l2fib
{

static constexpr std::uint64_t numbers[] = {0,
                                            1,
                                            9,
                                            10,
                                            99,
                                            100,
                                            999,
                                            1000,
                                            1007,
                                            999999,
                                            1000000,
                                            12345,
                                            0x7f,
                                            0x80,
                                            0xabcd,
                                            0xffff,
                                            999999999,
                                            0x7fffffff,
                                            0x80000000,
                                            0xffffffff,
                                            0x100000000,
                                            9999999999999999999U,
                                            0x7fffffffffffffff,
                                            0x8000000000000000,
                                            0xffffffffffffffff};

/// Every number, in the format: as the output prints it, and as printf does.
template <class Number>
static void expect_as_printf(const char *printf_format, const Format<Number> &format)
{
    for (const std::uint64_t number : numbers) {
        const auto value = static_cast<Number>(number);
        char expected[64];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        const int length = std::snprintf(expected, sizeof expected, printf_format, value);
#pragma GCC diagnostic pop
        int count = 0;
        EXPECT_EQ(printed([&] {
                      Output out;
                      count = out.text<Number>(format, value);
                  }),
                  expected);
        EXPECT_EQ(count, length) << printf_format;
    }
}

TEST(Output, NumbersAsPrintf)
{
#define EXPECT_AS_PRINTF(Number, format) expect_as_printf<Number>(format, format)
    EXPECT_AS_PRINTF(std::uint32_t, "%d");
    EXPECT_AS_PRINTF(std::uint32_t, "%u");
    EXPECT_AS_PRINTF(std::uint32_t, "%x");
    EXPECT_AS_PRINTF(std::uint32_t, "0x%0X");
    EXPECT_AS_PRINTF(std::uint32_t, "%0x");
    EXPECT_AS_PRINTF(std::uint32_t, "0x%08x ");
    EXPECT_AS_PRINTF(std::uint32_t, "<%5d>");
    EXPECT_AS_PRINTF(std::uint32_t, "<%-6d>");
    EXPECT_AS_PRINTF(std::uint32_t, "<%20d>");
    EXPECT_AS_PRINTF(std::uint32_t, "<%05d>");
    EXPECT_AS_PRINTF(std::uint32_t, "<%2x>");
    EXPECT_AS_PRINTF(std::uint32_t, "<%-13x>");
    EXPECT_AS_PRINTF(std::int32_t, "%d");
    EXPECT_AS_PRINTF(std::int32_t, "<%4d>");
    EXPECT_AS_PRINTF(std::uint16_t, "%04x");
    EXPECT_AS_PRINTF(std::uint16_t, "%d");
    EXPECT_AS_PRINTF(std::uint8_t, "%02x");
    EXPECT_AS_PRINTF(std::uint16_t, "%02u:");
    EXPECT_AS_PRINTF(std::int32_t, "%02d:");
    EXPECT_AS_PRINTF(std::uint8_t, "%d");
#undef EXPECT_AS_PRINTF
    // A long has 64 bits in the library's formats, whatever the processor.
    expect_as_printf<std::uint64_t>("%llu", "%lu");
    expect_as_printf<std::uint64_t>("%lld", "%zd");
}

/// Text of every kind, with the end of the buffer at every place in it.
TEST(Output, WhereverTheBufferEnds)
{
    const std::string longer(5000, 'x');
    const std::string all = std::string(40, ' ') + "a: 0x0000002a, 42, <     forty-two>, <forty-two     >, " +
                            std::string(80, 's') + "|" + std::string(81, 's') + "|" + longer + "|" +
                            std::string(200, '.') + "\n";
    for (std::size_t before = 3500; before < 4300; ++before) {
        const std::string text = printed([&] {
            Output out;
            out.repeat('-', before);
            out.indent(20);
            out.text("a: 0x%08x, %d, <%14s>, <%-14s>, ", std::uint32_t{42}, std::uint32_t{42}, "forty-two",
                     "forty-two");
            out.text("%s|%s|%s|", std::string(80, 's').c_str(), std::string(81, 's').c_str(), longer.c_str());
            out.repeat('.', 200);
            out.text("\n");
        });
        ASSERT_EQ(text, std::string(before, '-') + all) << before;
    }
}

TEST(Output, KeepsItsPlaceAmongTheTextOfOthers)
{
    EXPECT_EQ(printed([] {
                  std::printf("1");
                  {
                      Output out;
                      out.text("2");
                      out.flush();
                      std::printf("3");
                      out.text("4");
                  }
                  std::printf("5");
              }),
              "12345");
}

} // namespace l2fib
