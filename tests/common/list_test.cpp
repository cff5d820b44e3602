#include "common/list.h"
#include "tests/support/printed.h"

#include <gtest/gtest.h>

namespace l2fib
{

static std::string x(int count)
{
    return std::string(static_cast<std::size_t>(count), 'x');
}

TEST(List, Wrapping)
{
    const std::string blanks(72, ' ');
    const struct {
        std::uint32_t level;
        Literal label;
        std::string before; // text in front of the items
        std::vector<std::string> items;
        std::string printed;
    } cases[] = {
        {1, nullptr, "", {x(68), "next"}, std::string("\n  ") + x(68) + ", next"},    // up to column 70
        {1, nullptr, "", {x(69), "next"}, std::string("\n  ") + x(69) + ",\n  next"}, // from 71 on
        {2, "Flags", "", {x(60), "2", "3"}, std::string("\n    Flags: ") + x(60) + ",\n           2, 3"},
        {36, nullptr, "", {"first"}, std::string("\n") + blanks + ",\n" + blanks + "first"},
        {0, nullptr, "word ", {"first", "2"}, "\nword first, 2"},
        {0, nullptr, x(71), {"first"}, std::string("\n") + x(71) + ",\nfirst"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(printed([&] {
                      Output out;
                      List line = c.label.size != 0 ? List{out, c.level, c.label} : List{out, c.level};
                      line.text("%s", c.before.c_str());
                      for (const std::string &item : c.items) {
                          line.item("%s", item.c_str());
                          line.item_if(false, "never");
                      }
                  }),
                  c.printed);
    }
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
