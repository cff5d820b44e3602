// Hex as people paste it.
#include "client/hex.h"

#include <gtest/gtest.h>

namespace l2fib
{

TEST(Hex, Forms)
{
    const std::vector<std::uint8_t> five = {0x00, 0x11, 0xa2, 0xb3, 0xff};
    const struct {
        HexForm form;
        const char *text;
        std::vector<std::uint8_t> bytes;
    } cases[] = {
        {HexForm::any, "0011a2b3ff", five},
        {HexForm::any, "00 11\tA2\r\n\n 0xB3 0XFF\n", five},
        {HexForm::any, "0x0011a2b3ff", five},
        {HexForm::any, "00000000: 0011 a2b3 ff                             .....\n", five},
        {HexForm::any, "0000000: 00 11 a2  ...\n0000003: b3 ff  ..\n", five},
        {HexForm::any, "00000000  00 11 a2 b3 ff                                    |.....|\n00000005\n", five},
        {HexForm::hexdump, "00000000  00 11 a2 b3 ff\n00000005\n", five},
        {HexForm::any,
         "00000000  41 42 |AB|\n*\n00000006  7c 0a |\x7c.|\n00000008\n",
         {0x41, 0x42, 0x41, 0x42, 0x41, 0x42, 0x7c, 0x0a}},
        {HexForm::any, "00000000: 0000  ..\n*\n00000004: 0061  .a\n", {0, 0, 0, 0, 0, 0x61}},
        {HexForm::plain, "00000000 00000005", {0, 0, 0, 0, 0, 0, 0, 5}},
        {HexForm::any, "", {}},
    };
    for (const auto &c : cases) {
        const HexBytes read = read_hex(c.text, c.form, 64);
        EXPECT_EQ(read.error, "") << c.text;
        EXPECT_EQ(read.bytes, c.bytes) << c.text;
    }
}

TEST(Hex, EveryCharacterAtEveryPlace)
{
    const std::string all = "0123456789abcdef00112233445566778899aabbccddeeffa0b1c2d3e4f5061728";
    for (unsigned c = 0; c < 256; ++c) {
        for (std::size_t place = 0; place < all.size(); ++place) {
            std::string digits = all;
            digits[place] = static_cast<char>(c);
            const auto bytes = bytes_of_hex(digits);
            ASSERT_EQ(bytes.has_value(), std::isxdigit(static_cast<int>(c)) != 0) << c;
            if (bytes) {
                std::string lower = digits;
                lower[place] = static_cast<char>(std::tolower(static_cast<int>(c)));
                ASSERT_EQ(hex_of_bytes(*bytes), lower);
            }
        }
    }
}

TEST(Hex, WhatIsNone)
{
    const struct {
        HexForm form;
        const char *text;
        const char *error;
    } cases[] = {
        {HexForm::any, "00\n0g", "line 2: not pairs of hex digits"},
        {HexForm::any, "001", "line 1: not pairs of hex digits"},
        {HexForm::any, "00 11 22 33 44", "line 1: more bytes than any show data has"},
        {HexForm::any, "00000000: 0011  ..\n00000003: 22  .",
         "line 2: not the offset at which the bytes before it end"},
        {HexForm::hexdump, "00000000  00 11 |..|\n*\n00000003\n",
         "line 3: not the offset at which the bytes before it end"},
        {HexForm::hexdump, "00000000  00 11 |..|\n*\nffffffff\n", "line 3: more bytes than any show data has"},
        {HexForm::hexdump, "*\n00000004\n", "line 2: not the offset at which the bytes before it end"},
        {HexForm::xxd, "offset: 00", "line 1: no offset"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(read_hex(c.text, c.form, 4).error, c.error) << c.text;
    }
}

} // namespace l2fib
