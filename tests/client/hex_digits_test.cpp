// Pairs of hex digits.
#include "client/hex_digits.h"

#include <gtest/gtest.h>

namespace l2fib
{

TEST(HexDigits, EveryCharacterAtEveryPlace)
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

} // namespace l2fib
