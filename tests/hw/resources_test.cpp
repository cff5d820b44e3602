// The use of the hardware tables, of lengths that fit or do not.
#include "examples/show_data_builder.h"
#include "hw/resource.h"
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;

/// Resource data that says to be of some length.
static Shown show_resources(std::uint32_t length, const Wire &resources)
{
    ResourceShowData head{};
    set(head.length, length);
    Wire bytes = ShowDataBuilder{}.add(head).bytes();
    bytes.insert(bytes.end(), resources.begin(), resources.end());
    const GuardedBytes data(bytes);
    return shown([&] {
        return zel_l2fib_trident_print_internal_private(1, L2FIB_OBJTYPE_RSRC_MON, 1, 1, 2, data.data(), data.size());
    });
}

TEST(Resources, LengthsThatDoNotFit)
{
    const struct {
        std::uint32_t length;
        std::uint8_t np_count;
        std::size_t size;
    } cases[] = {
        {13256, 2, 13256}, {13255, 1, 13256}, {13256, 1, 13255}, {3, 1, 13256},     {13256, 9, 4},     {13256, 0, 4},
        {3, 9, 13256},     {20000, 1, 13256}, {20000, 1, 20000}, {13256, 1, 20000}, {13284, 8, 13284},
    };
    std::ostringstream text;
    for (const auto &c : cases) {
        Wire bytes(c.size);
        bytes.at(3) = c.np_count;
        Shown result = show_resources(c.length, bytes);
        if (const unsigned nps = occurrences(result.text, "Mac Scan Summary"); nps != 0) {
            result.text = "\n" + std::to_string(nps) + " NPs are shown";
        }
        text << "length " << c.length << ", NP count " << +c.np_count << ", " << c.size << " bytes:" << result << '\n';
    }
    expect_golden("resource-lengths.txt", text.str());
}

TEST(Resources, TotalsWrapAndNumbersAreSigned)
{
    ResourceData resources{};
    set(resources.np_count, 1);
    for (auto &of_type : resources.uses) {
        ResourceOperation &modify = of_type[0].to_compose().operations[1];
        set(modify.t_count, 0x80000001);
        set(modify.time, std::uint64_t{1} << 63U);
    }
    const Shown result = show_resources(13256, ShowDataBuilder{}.add(resources).add_zeros(4).bytes());
    expect_golden("resource-totals.txt", result.text);
}

} // namespace l2fib
