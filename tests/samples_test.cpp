// The sample captures: the library as a show client meets it.
#include "examples/captures.h"
#include "platform/platform.h"
#include "tests/support/printed.h"
#include "tests/support/test_platform.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace l2fib
{

static std::ostream &operator<<(std::ostream &out, const SampleCapture &sample)
{
    return out << sample.name;
}

static std::string file_text(const std::string &path)
{
    std::ifstream file(std::string(L2FIB_SOURCE_DIR "/") + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Samples : public testing::TestWithParam<SampleCapture>
{
protected:
    [[nodiscard]] static Shown show(const std::vector<std::uint8_t> &bytes)
    {
        const GuardedBytes data(bytes);
        return shown([&] {
            return zel_l2fib_print_internal(GetParam().objtype, 0, GetParam().direction, L2FIB_VIEW_DETAIL, data.data(),
                                            data.size());
        });
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

TEST_P(Samples, CutShortAtEverySize)
{
    const std::vector<std::uint8_t> whole = GetParam().make();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto end = whole.begin() + static_cast<std::ptrdiff_t>(size);
        EXPECT_EQ(show({whole.begin(), end}).status, L2FIB_SHOW_ERR_DATA) << "at " << size << " bytes";
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
