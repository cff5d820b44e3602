// The hardware's summaries around their tables, which the samples show whole.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/resource.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;

static Shown show_hal(const Wire &bytes)
{
    const GuardedBytes data(bytes);
    return shown([&] { return zel_l2fib_trident_print_summary(0, data.data(), data.size()); });
}

TEST(HalSummary, SizesThatDoNotFit)
{
    const std::string title = "\n                     Platform HAL Shared Memory\n"
                              "--------------------------------------------------------------\n";
    const std::string no_nps = title + "  MAC Counter Utilization High Water Mark:\n"
                                       "\n  NP HW Resource Status:\n"
                                       "\n  Platform HAL Shared Mem Flags: 0x0102\n"
                                       "  L2VPN Load Balance Type: 0x3040506\n"
                                       "  Total Negative MAC Counter Hit Count: 4294967295\n";
    const Wire none{0, 0, 0, 0, 1, 2, 3, 4, 5, 6, 255, 255, 255, 255};
    Wire longer = none;
    longer.resize(18);
    const auto corrupted = [](const char *rest) {
        return std::string("  Show bag corrupted buffer size: ") + rest + "\n";
    };
    const struct {
        Wire bytes;
        std::string text;
    } cases[] = {
        {none, no_nps},
        {longer, no_nps + corrupted("4")},
        {{0, 0, 0, 0, 1}, title + corrupted("-9")},
        {{0, 0, 1}, title + corrupted("-11")},
        {{0, 0, 0, 2}, title + corrupted("-22")},
        {{255, 255, 255, 255}, title + corrupted("-4")}, // the low 32 bits of 4 - (14 + 6 * 0xffffffff)
        {Wire{0, 0, 0, 1, 128, 0, 0, 0, 0xab, 0xcd, 0, 1, 0, 0, 0, 0, 0, 0, 0, 9},
         title + "  MAC Counter Utilization High Water Mark:\n  NP-0:-2147483648\n  NP HW Resource Status:\n"
                 "  NP-0: 0xabcd\n  Platform HAL Shared Mem Flags: 0x0001\n  L2VPN Load Balance Type: 0x0\n"
                 "  Total Negative MAC Counter Hit Count: 9\n"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(show_hal(c.bytes), Shown{c.text});
    }
    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_summary(0, nullptr, 30); }),
              Shown{"zel_l2fib_trident_print_summary: NULL show data \n"});
}

/// The hardware's private view.
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

static Wire resources_of(std::uint8_t np_count, std::size_t size)
{
    Wire bytes(size);
    bytes.at(3) = np_count;
    return bytes;
}

TEST(Resources, SizesThatDoNotFit)
{
    const std::string wrong_size = "\n  zel_l2fib_trident_print_resource: invalid data size: ";
    const std::string failed = "\n\n  zel_l2fib_trident_print_internal_private: print handler failed for objtype 7 : "
                               "status 0x46258800\n";
    const auto size_failure = [&](const char *sizes) {
        return Shown{wrong_size + sizes + failed, L2FIB_SHOW_ERR_DATA};
    };
    EXPECT_EQ(show_resources(13256, resources_of(2, 13256)), size_failure("13252, expecting 13256"));
    EXPECT_EQ(show_resources(13255, resources_of(1, 13256)), size_failure("13251, expecting 13252"));
    EXPECT_EQ(show_resources(13256, resources_of(1, 13255)), size_failure("13251, expecting 13252"));
    EXPECT_EQ(show_resources(3, resources_of(1, 13256)), size_failure("-1, expecting 13252"));
    EXPECT_EQ(show_resources(13256, {}), size_failure("-4, expecting 13252"));
    EXPECT_EQ(show_resources(13256, resources_of(9, 4)),
              Shown{"\n  Error: Number of NPs (9) returned more than supported(8)"});
    EXPECT_EQ(show_resources(13256, resources_of(0, 4)), Shown{"\n  Error: Number of NPs (0) returned is invalid"});
    EXPECT_EQ(show_resources(3, resources_of(9, 13256)),
              Shown{"\n  Error: Number of NPs (9) returned more than supported(8)"});
    EXPECT_EQ(show_resources(20000, resources_of(1, 13256)), size_failure("19996, expecting 13252"));
    EXPECT_EQ(show_resources(20000, resources_of(1, 20000)), size_failure("19996, expecting 13252"));
    EXPECT_EQ(show_resources(13255, {}), size_failure("13251, expecting 13252"));
    EXPECT_EQ(show_resources(13256, resources_of(1, 20000)).status, 0U); // what follows the length is not looked at
    EXPECT_EQ(show_resources(13284, resources_of(8, 13284)).status, 0U);

    std::uint8_t head[8] = {};
    const auto show_head = [&](std::uint8_t *data, std::uint64_t size) {
        return shown([&] { return zel_l2fib_trident_print_internal_private(1, 7, 1, 1, 2, data, size); });
    };
    EXPECT_EQ(show_head(head, 7),
              (Shown{"\n  data_size is 7, expecting at least 8" + failed.substr(1), L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(show_head(nullptr, 7),
              (Shown{"\n  zel_l2fib_trident_print_resource: NULL show data \n"
                     "\n  zel_l2fib_trident_print_internal_private: print handler failed for objtype 7 : "
                     "status 0x46258e00\n",
                     L2FIB_SHOW_ERR_ARGS}));
}

TEST(Resources, TotalsWrapAndNumbersAreSigned)
{
    ResourceData resources{};
    set(resources.np_count, 1);
    for (unsigned type = 0; type < resource_types; ++type) {
        ResourceOperation &modify = resources.types[type].nps[0].operations[1];
        set(modify.t_count, 0x80000001);
        set(modify.time, std::uint64_t{1} << 63U);
    }
    ShowDataBuilder builder;
    const Shown result = show_resources(13256, builder.add(resources).add_zeros(4).bytes());
    // Of the thirteen types one does not count what modifies it, and all count its time.
    EXPECT_NE(result.text.find("        Total     0/0        12/0         0/0"), std::string::npos) << result;
    EXPECT_NE(result.text.find("          XID     0/0     -2147483647/0"), std::string::npos) << result;
    EXPECT_NE(result.text.find("        Total     < 1 ms   106751 d     < 1 ms"), std::string::npos) << result;
}

TEST(Resources, ShowDataStaysAsReceived)
{
    const Wire bytes = make_resources();
    const GuardedBytes data(bytes);
    printed(
        [&] { zel_l2fib_print_internal(L2FIB_OBJTYPE_RSRC_MON, 0, 1, L2FIB_VIEW_PRIVATE, data.data(), data.size()); });
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), data.data()));
}

} // namespace l2fib
