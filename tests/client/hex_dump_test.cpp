// Hex as people paste it.
#include "client/hex_dump.h"

#include <gtest/gtest.h>

namespace l2fib
{

using Bytes = std::vector<std::uint8_t>;

TEST(HexDump, Forms)
{
    const Bytes five = {0x00, 0x11, 0xa2, 0xb3, 0xff};
    const Bytes text = {' ', 'a', 'b', ' ', ' ', 'c', '|', ' ', ' ', ' '};
    const struct {
        HexForm form;
        const char *text;
        Bytes bytes;
    } cases[] = {
        {HexForm::any, "0011a2b3ff", five},
        {HexForm::any, "00 11\tA2\r\n\n 0xB3 0XFF\n", five},
        {HexForm::any, "0x0011a2b3ff", five},
        {HexForm::any, "00000000 00000005", {0, 0, 0, 0, 0, 0, 0, 5}},
        {HexForm::any, "00000000 00000005\n00000004\n", {0, 0, 0, 0, 0, 0, 0, 5, 0, 0, 0, 4}},
        {HexForm::any, "000010 11\n000010 11\n", {0, 0, 0x10, 0x11, 0, 0, 0x10, 0x11}},
        {HexForm::any, "", {}},
        // xxd, and what mail programs make of it
        {HexForm::any, "00000000: 0011 a2b3 ff                             .....\n", five},
        {HexForm::any, "0000000: 00 11 a2  ...\n0000003: b3 ff  ..\n", five},
        {HexForm::any, "00000000:  0011 a2b3 ff  .....\r\n", five},
        {HexForm::any, " 0:0011a2b3ff\n5:\n", five},
        {HexForm::any, "00000000: 2061 6220 2063 7c20 2020   ab  c|   \n", text},
        {HexForm::any, "00000000: 2061 6220 2063 7c20 2020   ab  c|\n", text},
        {HexForm::any, "00000000: 2020  \n00000002: 6162  ab\n", {' ', ' ', 'a', 'b'}},
        {HexForm::any, "00000000: 0000  ..\n*\n00000004: 0061  .a\n", {0, 0, 0, 0, 0, 0x61}},
        // hexdump -C and od
        {HexForm::any, "00000000  00 11 a2 b3 ff                                    |.....|\n00000005\n", five},
        {HexForm::any, "00000000  00 11 a2 b3 ff\n00000005\n", five},
        {HexForm::any, "000000 00 11 a2 b3 ff  >.....<\n000005\n", five},
        {HexForm::any,
         "00000000  31 32 33 34 35 36 37 38  39 30 |1234567890|\n",
         {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'}},
        {HexForm::any,
         "00000000  41 42 |AB|\n*\n00000006  7c 0a |\x7c.|\n00000008\n",
         {0x41, 0x42, 0x41, 0x42, 0x41, 0x42, 0x7c, 0x0a}},
        {HexForm::any,
         "00000000  41 42 |AB|\n00000002  43 44 |CD|\n*\n00000006\n",
         {0x41, 0x42, 0x43, 0x44, 0x43, 0x44}},
        {HexForm::any, "00000000  00 |.|\n*\n00000040\n", Bytes(64)},
    };
    for (const auto &c : cases) {
        const HexBytes read = read_hex_dump(c.text, c.form, 64);
        EXPECT_EQ(read.error, "") << c.text;
        EXPECT_EQ(read.bytes, c.bytes) << c.text;
    }
}

TEST(HexDump, WhatIsNone)
{
    const char *neither = "neither pairs of hex digits nor the characters of the bytes before";
    const char *words = "words in an unknown byte order; use xxd or hexdump -C";
    const char *octal = "offset in octal or decimal; use od -A x, xxd or hexdump -C";
    const char *offset = "not the offset at which the bytes before it end";
    const struct {
        HexForm form;
        const char *text;
        const char *place;
        const char *why;
    } cases[] = {
        {HexForm::any, "00\n 11 0g", "line 2, column 5", "not pairs of hex digits"},
        {HexForm::any, "001", "line 1, column 1", "not pairs of hex digits"},
        {HexForm::any, "00 0x", "line 1, column 4", "not pairs of hex digits"},
        {HexForm::any, "00 11 22 33 44 55 66 77 88 99", "line 1, column 28", "more bytes than any show data has"},
        {HexForm::any, "00000000: 0011 .. ", "line 1, column 16", neither},
        {HexForm::any, "00000000: 0011  .", "line 1, column 17", neither},
        {HexForm::any, "00000000: 0061  .b", "line 1, column 17", neither},
        {HexForm::any, "00000000: 0061  .aa", "line 1, column 17", neither},
        {HexForm::any, "00000000: 6120  61", "line 1, column 17", neither},
        {HexForm::any, "00000000: 2061  a", "line 1, column 17", neither},
        {HexForm::any, "00000000: 0011  ..\n00000003: 22  .", "line 2, column 1", offset},
        {HexForm::any, "00000000: 0011\n*\n", "line 2, column 1",
         "no offset after it says how often the line is repeated"},
        {HexForm::any, "00000000  61 62  |ab\n", "line 1, column 18", neither},
        {HexForm::any, "00000000  61 62  |a |\n", "line 1, column 18", neither},
        {HexForm::any, "000000 00 11\n000003\n", "line 2, column 1", offset},
        {HexForm::any, "0000000 00 11\n0000020\n", "line 1, column 1", octal},
        {HexForm::any, "0000000 0100 0302", "line 1, column 9", words},
        {HexForm::any, "000000 01000302", "line 1, column 8", words},
        {HexForm::any, "000000 000400 001234\n000010 000001\n", "line 1, column 8", words},
        {HexForm::any, "000000      0  -1234\n000004\n", "line 1, column 13", neither},
        {HexForm::any, "000001 00 11\n000003 22\n", "line 1, column 1", offset},
        {HexForm::any, "000001 00\n000021 22\n", "line 1, column 1", offset},
        {HexForm::any, "000001 00 0\n000022 22\n", "line 1, column 11", "not pairs of hex digits"},
        {HexForm::any, "000000 0706050403020100", "line 1, column 8", words},
        {HexForm::hexdump, "00000000  00 11 |..|\n*\n00000003\n", "line 3, column 1", offset},
        {HexForm::hexdump, "00000000  00 |.|\n*\nffffffff\n", "line 3, column 1", "more bytes than any show data has"},
        {HexForm::hexdump, "*\n00000004\n", "line 2, column 1", offset},
        {HexForm::xxd, "00000000 00", "line 1, column 1", "no offset"},
        {HexForm::xxd, "offset: 00", "line 1, column 1", "no offset"},
    };
    for (const auto &c : cases) {
        const HexBytes read = read_hex_dump(c.text, c.form, 9);
        EXPECT_EQ(read.error, std::string(c.place) + ": " + c.why) << c.text;
        EXPECT_TRUE(read.bytes.empty());
    }
}

} // namespace l2fib
