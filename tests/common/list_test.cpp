#include "common/list.h"
#include "tests/support/printed.h"

#include <gtest/gtest.h>

namespace l2fib
{

static std::string x(int count)
{
    return std::string(static_cast<std::size_t>(count), 'x');
}

TEST(List, AnItemMayBeginUpToColumn70)
{
    const struct {
        int first_item; // behind two blanks
        const char *separator;
    } cases[] = {{67, ", "}, {68, ", "}, {69, ",\n  "}};
    for (const auto &c : cases) {
        EXPECT_EQ(printed([&] {
                      Output out;
                      List line{out, 1};
                      line.item("%s", x(c.first_item).c_str());
                      line.item("next");
                  }),
                  "\n  " + x(c.first_item) + c.separator + "next");
    }
}

TEST(List, LabelledListContinuesUnderItsFirstItem)
{
    EXPECT_EQ(printed([] {
                  Output out;
                  List line{out, 2, "Flags"};
                  line.item("%s", x(60).c_str());
                  line.item("second");
                  line.item_if(false, "never");
                  line.item("third");
              }),
              "\n    Flags: " + x(60) + ",\n           second, third");
}

TEST(List, LineThatIsFullBeforeItsFirstItemWraps)
{
    const std::string blanks(72, ' ');
    EXPECT_EQ(printed([] {
                  Output out;
                  List line{out, 36};
                  line.item("first");
              }),
              "\n" + blanks + ",\n" + blanks + "first");
}

TEST(List, TextTakesRoomButIsNoItem)
{
    EXPECT_EQ(printed([] {
                  Output out;
                  List line{out, 0};
                  line.text("%s ", x(70).c_str());
                  line.item("item");
              }),
              "\n" + x(70) + " ,\nitem");
}

TEST(List, Flags)
{
    static constexpr FlagTable table{{{31, "top"}, {0, "bottom"}, {4, "on", "off"}}};
    const auto flags = [](std::uint32_t word, std::uint32_t considered) {
        return printed([&] {
            Output out;
            print_flags(out, 0, "Flags", table, word, considered);
        });
    };
    EXPECT_EQ(flags(0x80000011, all_flags), "\nFlags: top, bottom, on");
    EXPECT_EQ(flags(0, all_flags), "\nFlags: off");
    EXPECT_EQ(flags(0x0000fff0, all_flags_but(4)), "\nFlags: None");
}

} // namespace l2fib
