// The sample captures: the library as a show client meets it.
#include "client/capture_line.h"
#include "examples/sample_lines.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace l2fib
{

static std::ostream &operator<<(std::ostream &out, const SampleCapture &sample)
{
    return out << sample.name;
}

class Samples : public testing::TestWithParam<SampleCapture>
{
protected:
    const Capture capture = parse_capture(sample_line(GetParam())).capture;

    [[nodiscard]] Shown show(std::size_t size) const
    {
        const GuardedBytes data(
            {capture.show_data.begin(), capture.show_data.begin() + static_cast<std::ptrdiff_t>(size)});
        return shown([&] { return capture.show({data.data(), data.size()}); });
    }
};

TEST_P(Samples, AreThoseThatTheBuilderMakes)
{
    EXPECT_TRUE(sample_line(GetParam()) + "\n" == file_text(std::string("examples/") + GetParam().name + ".jsonl"))
        << "examples/" << GetParam().name << ".jsonl is not what make-captures writes";
}

TEST_P(Samples, WholeScreen)
{
    EXPECT_EQ(show(capture.show_data.size()),
              Shown{file_text(std::string("tests/screens/") + GetParam().name + ".txt")});
}

/// From which size on a sample's view fails no more, and how it fails below.
struct Need {
    const char *name;
    std::size_t size;
    std::uint32_t status = L2FIB_SHOW_ERR_DATA;
    std::uint32_t status_of_nothing = L2FIB_SHOW_ERR_DATA;
};
constexpr std::size_t all_of_it = SIZE_MAX;
static constexpr Need needs[] = {
    {"vpls-pw-ingress", 308 + 2 * 188}, // its ingress part is left out where it is not whole
    {"vpls-pw-private", 304},
    {"bridge-private", 930},
    {"resources", all_of_it, L2FIB_SHOW_ERR_DATA, 0},
    {"state-summary", 541, L2FIB_SHOW_ERR_ARGS, 0},
    {"event-statistics", 4536, L2FIB_SHOW_ERR_ARGS, 0},
    {"hal-summary", 0}, // never fails
};

static Need need_of(const SampleCapture &sample)
{
    const auto *found = std::find_if(std::begin(needs), std::end(needs),
                                     [&](const Need &need) { return std::string(sample.name) == need.name; });
    return found == std::end(needs) ? Need{sample.name, all_of_it} : *found;
}

/// The text in front of the line that reports the early end; none when there is no such line.
static std::optional<std::string> before_report(const std::string &text)
{
    for (const char *report : {"data_size is", "data size:", "size wrong", "corrupted buffer", "Invalid TLV size"}) {
        if (const std::size_t at = text.find(report); at != std::string::npos) {
            const std::size_t line = text.rfind('\n', at);
            return text.substr(0, line == std::string::npos ? 0 : line);
        }
    }
    return std::nullopt;
}

TEST_P(Samples, CutShortAtEverySize)
{
    const std::size_t whole = capture.show_data.size();
    const std::string screen = show(whole).text;
    const Need need = need_of(GetParam());
    const bool is_report = GetParam().view == std::string("inconsistent"); // one may end behind any record
    for (std::size_t size = 0; size < whole; ++size) {
        const Shown result = show(size);
        const std::string before = before_report(result.text).value_or(is_report ? result.text : "");
        ASSERT_EQ(screen.substr(0, before.size()), before) << "at " << size << " bytes";
        if (!is_report) {
            const std::uint32_t status = size == 0 ? need.status_of_nothing : need.status;
            ASSERT_EQ(result.status, size < need.size ? status : 0) << "at " << size << " bytes";
        }
    }
}

TEST_P(Samples, StatusStandsWhereTheTextCannotGo)
{
    std::fflush(stdout);
    const int screen = dup(STDOUT_FILENO);
    for (const bool is_closed : {false, true}) {
        for (const std::size_t size : {capture.show_data.size(), capture.show_data.size() / 2}) {
            const Shown expected = show(size);
            std::vector<std::uint8_t> data = capture.show_data;
            const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
            dup2(full, STDOUT_FILENO);
            close(full);
            if (is_closed) {
                close(STDOUT_FILENO);
            }
            const std::uint32_t status = capture.show({data.data(), size});
            const bool has_failed = std::fflush(stdout) != 0 || std::ferror(stdout) != 0;
            dup2(screen, STDOUT_FILENO);
            std::clearerr(stdout);
            EXPECT_EQ(status, expected.status);
            EXPECT_EQ(has_failed, !expected.text.empty());
            EXPECT_EQ(show(size), expected);
        }
    }
    close(screen);
}

INSTANTIATE_TEST_SUITE_P(, Samples, testing::ValuesIn(sample_captures), [](const auto &sample) {
    std::string name = sample.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace l2fib
