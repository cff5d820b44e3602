// Files of other kinds are told from show data, and show data is taken for none of them.
#include "client/broken_lines.h"
#include "client/capture_line.h"
#include "client/wrong_input.h"
#include "examples/sample_lines.h"

#include <gtest/gtest.h>

namespace l2fib
{

using namespace std::string_literals;

TEST(WrongInput, NoBeginningOfASampleIsTakenForAnything)
{
    for (const SampleCapture &sample : sample_captures) {
        const std::vector<std::uint8_t> bytes = parse_capture(sample_line(sample)).capture.show_data;
        const std::string content(bytes.begin(), bytes.end());
        for (std::size_t size = 0; size <= content.size(); ++size) {
            ASSERT_EQ(other_than_show_data(content.substr(0, size)), "") << size << " bytes of " << sample.name;
        }
    }
}

TEST(WrongInput, OnlyWhatIsCertain)
{
    const std::string capture = R"({"object":"ac","show_data":"00"})";
    const struct {
        std::string content;
        const char *form;
    } cases[] = {
        {"\x1f\x8b\x08\0\0\0\0\0\0\3"s + "01234567", "gzip: zcat FILE | l2fib-show ... -"},
        {"\x1f\x8b\x08\x08\x0a\0\0\0\2\xff"s + "01234567", "gzip: zcat FILE | l2fib-show ... -"},
        {"\x1f\x8b\x08\0\0\0\0\0\0\3"s, ""},                // ends too early
        {"\x1f\x8b\x08\x20\0\0\0\0\0\3"s + "01234567", ""}, // a flag that gzip has not
        {"\x1f\x8b\x08\0\0\0\0\0\3\3"s + "01234567", ""},
        {"\x1f\x8b\x08\0\0\0\0\0\0\x0e"s + "01234567", ""},
        {"\xfd"
         "7zXZ\0"s,
         "xz: xzcat FILE | l2fib-show ... -"},
        {"\xfd"
         "7zXZ\1"s,
         ""},
        {"\x28\xb5\x2f\xfd", "zstd: zstdcat FILE | l2fib-show ... -"},
        {"\n " + capture + "\n\0\1"s, "captures: use l2fib-show replay FILE"},
        {"{}\n", "captures: use l2fib-show replay FILE"},
        {capture + "\1"s, ""},
        {"{\0\0\0\x0a"s, ""},
        {"{\n\0\0\0"s, ""},
        {"{", "text, not show data; as a hex dump: line 1, column 1: not pairs of hex digits"},
        {"{\n \"remark\": \"\xc3\xb6\"\n}", "JSON over several lines: jq -c . FILE | l2fib-show replay -"},
        {"[" + capture + "]", "an array: jq -c '.[]' FILE | l2fib-show replay -"},
        {"[\0\0\0"s, ""},
        {"00 11\n", "a hex dump: add --hex"},
        {"00 11\n\0"s, ""},
        {" \n", ""},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(other_than_show_data(c.content), c.form) << c.content;
    }
}

TEST(WrongInput, AFileIsGivenUpAfterTenLinesWithoutACapture)
{
    BrokenLines lines;
    for (int number = 1; number <= 10; ++number) {
        EXPECT_FALSE(lines.are_enough());
        lines.add(R"({"object":"vlan"})", "f:" + std::to_string(number));
    }
    EXPECT_TRUE(lines.are_enough());
    EXPECT_EQ(lines.verdict("f"), (std::vector<std::string>{"f:1", "f: no capture on its first 10 lines"}));
}

} // namespace l2fib
