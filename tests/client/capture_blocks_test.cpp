// Lines of captures, wherever blocks end and whatever is too long.
#include "client/capture_blocks.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace l2fib
{

class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string &content)
    {
        close(mkstemp(path_.data()));
        std::ofstream(path_, std::ios::binary) << content;
    }
    ~TemporaryFile() { unlink(path_.c_str()); }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    [[nodiscard]] const std::string &path() const { return path_; }

private:
    std::string path_ = testing::TempDir() + "linesXXXXXX";
};

using Lines = std::vector<std::pair<std::size_t, std::string>>;

/// The lines of a file by number, and its messages as lines of number 0. Where a block ends, a line does.
static Lines lines_of(const std::string &path)
{
    const std::vector<std::string> files{path};
    CaptureBlocks blocks(files);
    SharedBlocks memory(1);
    Lines lines;
    while (blocks.fill(memory[0])) {
        for (const Block::Part &part : memory[0].used_parts()) {
            std::size_t number = part.line;
            if (part.kind == Block::Part::Kind::message) {
                lines.emplace_back(0, memory[0].text_of(part).substr(path.size()));
                continue;
            }
            for_each_line(memory[0].text_of(part), [&](std::string_view line) {
                lines.emplace_back(number++, line);
                return true;
            });
        }
    }
    return lines;
}

static const std::string capture = R"({"object":"ac","show_data":""})";

TEST(CaptureBlocks, LinesWhereverABlockEnds)
{
    constexpr std::size_t usual = Block::usual_size;
    for (const std::size_t first : {usual - 2, usual - 1, usual, usual + 1, 2 * usual}) {
        for (const bool is_ended : {true, false}) {
            Lines expected{{1, capture}};
            std::string content = capture;
            for (const std::size_t size : {first - capture.size() - 1, std::size_t{0}, usual, std::size_t{7}, first}) {
                expected.emplace_back(expected.size() + 1, std::string(size, 'x'));
                content += '\n' + expected.back().second;
            }
            const TemporaryFile file(content + (is_ended ? "\n" : ""));
            EXPECT_TRUE(lines_of(file.path()) == expected) << first << is_ended;
        }
    }
}

TEST(CaptureBlocks, ALineThatIsTooLongIsSkipped)
{
    const std::string longest(Block::longest_line, 'x');
    const TemporaryFile file(capture + '\n' + longest + '\n' + longest + "x\n" + "last\n" + longest + "xx");
    const Lines lines = lines_of(file.path());
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_TRUE(lines[1] == std::pair(std::size_t{2}, longest));
    // One more character fits into a block, where whoever reads the line refuses it.
    EXPECT_EQ(lines[2].second.substr(0, 20), longest.substr(0, 20));
    EXPECT_EQ(lines[3], std::pair(std::size_t{4}, std::string("last")));
    EXPECT_EQ(lines[4], std::pair(std::size_t{0}, std::string(":5: line too long")));
}

} // namespace l2fib
