// Text of others, as a terminal gets it.
#include "client/harmless_text.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace l2fib
{

TEST(HarmlessText, WhereverItsPiecesEnd)
{
    setenv("LC_ALL", "C.UTF-8", 1);
    const std::string hostile = "a\x1b[2J\x9b\x31m\r\n\tb\x7f\xc3\xa9\xc2\x9b\xe2\x80\x8b\xcc\x81\xf0\x9f\x98\xff~\xc3";
    const std::string harmless =
        "a\\x1b[2J\\x9b1m\\x0d\n\tb\\x7f\xc3\xa9\\xc2\\x9b\\xe2\\x80\\x8b\\xcc\\x81\\xf0\\x9f\\x98\\xff~\\xc3";
    for (std::size_t first = 0; first <= hostile.size(); ++first) {
        for (std::size_t second = first; second <= hostile.size(); ++second) {
            HarmlessText text;
            std::string made = text.add(hostile.substr(0, first));
            made += text.add(hostile.substr(first, second - first));
            made += text.add(hostile.substr(second));
            made += text.finish();
            ASSERT_EQ(made, harmless) << first << ' ' << second;
        }
    }
}

} // namespace l2fib
