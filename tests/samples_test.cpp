// The sample captures: the library as a show client meets it.
#include "tests/support/golden.h"
#include "tests/support/samples.h"

#include <fcntl.h>
#include <unistd.h>

namespace l2fib
{

TEST_P(Samples, AreThoseThatTheBuilderMakes)
{
    EXPECT_TRUE(sample_line(GetParam()) + "\n" == file_text(std::string("examples/") + GetParam().name + ".jsonl"))
        << "examples/" << GetParam().name << ".jsonl is not what make-captures writes";
}

TEST_P(Samples, WholeScreen)
{
    const Shown screen = show(capture.show_data.size());
    expect_golden(std::string(GetParam().name) + ".txt", screen.text);
    EXPECT_EQ(screen.status, 0U);
}

TEST_P(Samples, WholeScreenOfLineCardsThatStoreTheOtherWay)
{
    capture = parse_capture(sample_line(GetParam(), std::endian::big)).capture;
    const Shown screen = show(capture.show_data.size());
    expect_golden(std::string(GetParam().name) + ".txt", screen.text);
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

INSTANTIATE_TEST_SUITE_P(, Samples, testing::ValuesIn(sample_captures), sample_name);

} // namespace l2fib
