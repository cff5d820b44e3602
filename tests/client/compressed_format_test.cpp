// What is compressed is told by its first bytes, and no show data is taken for it.
#include "client/capture_line.h"
#include "client/compressed/format.h"
#include "examples/sample_lines.h"

#include <gtest/gtest.h>

namespace l2fib
{

using namespace std::string_literals;

/// The name of the format that show data of this content certainly has, "" for none.
static std::string certain_format(std::string_view content)
{
    const CompressedFormat *format = compressed_format(content, true);
    return format == nullptr ? "" : format->name;
}

TEST(CompressedFormat, OnlyWhatIsCertain)
{
    const struct {
        std::string content;
        const char *format;
    } cases[] = {
        {"\x1f\x8b\x08\0\0\0\0\0\0\3"s + "01234567", "gzip"},
        {"\x1f\x8b\x08\x08\x0a\0\0\0\2\xff"s + "01234567", "gzip"},
        {"\x1f\x8b\x08\0\0\0\0\0\4\x0d"s + "01234567", "gzip"},
        {"\x1f\x8b\x08\0\0\0\0\0\0\3"s + "0123456", ""},    // ends too early
        {"\x1f\x8b\x08\x20\0\0\0\0\0\3"s + "01234567", ""}, // a flag that gzip has not
        {"\x1f\x8b\x08\0\0\0\0\0\3\3"s + "01234567", ""},
        {"\x1f\x8b\x08\0\0\0\0\0\0\x0e"s + "01234567", ""},
        {"\xfd"
         "7zXZ\0"s,
         "xz"},
        {"\xfd"
         "7zXZ\1"s,
         ""},
        {"\x28\xb5\x2f\xfd", "zstd"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(certain_format(c.content), c.format) << testing::PrintToString(c.content);
    }
}

TEST(CompressedFormat, NoBeginningOfASampleIsTakenForAny)
{
    for (const SampleCapture &sample : sample_captures) {
        const std::vector<std::uint8_t> bytes = parse_capture(sample_line(sample)).capture.show_data;
        const std::string content(bytes.begin(), bytes.end());
        EXPECT_EQ(certain_format(content), "") << sample.name;
    }
}

} // namespace l2fib
