// The sample captures: the library as a show client meets it.
#include "examples/captures.h"
#include "platform/platform.h"
#include "tests/support/printed.h"
#include "tests/support/test_platform.h"

#include <gtest/gtest.h>

namespace l2fib
{

static std::ostream &operator<<(std::ostream &out, const SampleCapture &sample)
{
    return out << sample.name;
}

class Samples : public testing::TestWithParam<SampleCapture>
{
protected:
    [[nodiscard]] static Shown show(const std::vector<std::uint8_t> &bytes)
    {
        return shown_detail(GetParam().objtype, GetParam().direction, bytes);
    }
};

TEST_P(Samples, AreThoseThatTheBuilderMakes)
{
    const std::vector<std::uint8_t> made = GetParam().make();
    EXPECT_TRUE(std::string(made.begin(), made.end()) == file_text(std::string("examples/") + GetParam().name + ".bin"))
        << "examples/" << GetParam().name << ".bin is not what make-captures writes";
}

TEST_P(Samples, WholeScreen)
{
    EXPECT_EQ(show(GetParam().make()), Shown{file_text(std::string("tests/screens/") + GetParam().name + ".txt")});
}

/// The ingress part of a VPLS PW is left out where it is not whole; everything before it has to be there.
static std::size_t needed_size(const SampleCapture &sample, std::size_t whole)
{
    constexpr std::size_t vpls_pw_without_ingress_part = 308 + 2 * 188;
    return sample.make == make_vpls_pw_ingress ? vpls_pw_without_ingress_part : whole;
}

TEST_P(Samples, CutShortAtEverySize)
{
    const std::vector<std::uint8_t> whole = GetParam().make();
    const std::string screen = show(whole).text;
    const std::size_t needed = needed_size(GetParam(), whole.size());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Shown result = show({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
        EXPECT_EQ(result.status, size < needed ? L2FIB_SHOW_ERR_DATA : 0) << "at " << size << " bytes";

        // What was printed before the report of the early end is what the whole capture prints.
        const std::size_t report = result.text.find("data_size is");
        if (report != std::string::npos) {
            const std::string before = result.text.substr(0, result.text.rfind('\n', report));
            EXPECT_EQ(screen.substr(0, before.size()), before) << "at " << size << " bytes";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Samples, testing::ValuesIn(sample_captures), [](const auto &sample) {
    std::string name = sample.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST(Platform, TheExecutablesOperationsComeFirst)
{
    test_platform.card_type = 0;
    EXPECT_EQ(zel_l2fib_get_cardtype(0), 0U);
    test_platform = {};
    EXPECT_EQ(zel_l2fib_get_cardtype(0), 1U);
}

} // namespace l2fib
