#include "common/show_data.h"

#include <gtest/gtest.h>

namespace l2fib
{

TEST(ShowData, RecordsLieInsideOrAreNotReached)
{
    std::uint8_t bytes[10] = {};
    const ShowData data{bytes, sizeof bytes};
    const struct {
        std::uint64_t offset;
        bool inside;
    } cases[] = {
        {0, true}, {6, true}, {7, false}, {10, false}, {11, false}, {UINT64_MAX, false}, {UINT64_MAX - 3, false}};
    for (const auto &c : cases) {
        EXPECT_EQ(data.at<BigU32>(c.offset) != nullptr, c.inside) << c.offset;
    }
    EXPECT_EQ(data.from(10).size(), 0U);
    EXPECT_FALSE(data.from(10).is_null());
    EXPECT_TRUE(data.from(11).is_null());
    EXPECT_EQ(ShowData(nullptr, 100).at<U8>(0), nullptr);
}

} // namespace l2fib
