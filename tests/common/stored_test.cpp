#include "common/show_data.h"
#include "common/record.h"

#include <gtest/gtest.h>

namespace l2fib
{

template <class Word>
static Bytes<sizeof(Word)> converted(Bytes<sizeof(Word)> wire)
{
    Word word = std::bit_cast<Word>(wire);
    word.to_host();
    return std::bit_cast<Bytes<sizeof(Word)>>(word);
}

TEST(Stored, PackedFieldsKeepTheirValues)
{
    using Flags = FlagWord<one_bit(32)>;
    EXPECT_EQ(converted<Flags>({0x80, 0x01, 0x40, 0x00}), (Bytes<4>{0x01, 0x80, 0x02, 0x00}));

    using Features = FlagWord<one_bit(5), wide(2), wide(2), one_bit(7), wide(2), one_bit(14)>;
    EXPECT_EQ(converted<Features>({0x04, 0x00, 0x00, 0x00}), (Bytes<4>{0x40, 0x00, 0x00, 0x00}));

    using MacFlags = FlagWord<one_bit(12), wide(20)>;
    EXPECT_EQ(converted<MacFlags>({0x80, 0x00, 0x00, 0x01}), (Bytes<4>{0x01, 0x10, 0x00, 0x00}));

    using First = FlagByte<one_bit(2), wide(6)>;
    EXPECT_EQ(converted<First>({0x85}), (Bytes<1>{0x15}));
}

TEST(Stored, PackedFieldsAreNumberedInTheProducersOrder)
{
    using Word = FlagWord<one_bit(1), wide(2), one_bit(29)>;
    Word word = std::bit_cast<Word>(Bytes<4>{0x50, 0x00, 0x00, 0x01});
    word.to_host();
    EXPECT_FALSE(word.test(0));
    EXPECT_EQ(word.get(1), 2U);
    EXPECT_TRUE(word.test(2));
    EXPECT_FALSE(word.test(3));
    EXPECT_TRUE(word.test(30));
}

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
        EXPECT_EQ(data.at<U32>(c.offset) != nullptr, c.inside) << c.offset;
    }
    EXPECT_EQ(data.from(10).size(), 0U);
    EXPECT_FALSE(data.from(10).is_null());
    EXPECT_TRUE(data.from(11).is_null());
    EXPECT_EQ(ShowData(nullptr, 100).at<U8>(0), nullptr);
}

} // namespace l2fib
