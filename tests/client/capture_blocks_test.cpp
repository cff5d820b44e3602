// Lines of captures, wherever blocks end and whatever is too long.
#include "client/capture_blocks.h"

#include <cstdlib>
#include <fcntl.h>
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

/// The lines of a file by number, of those that are too long no more than that. Where a block ends, a line does.
static Lines lines_of(const std::string &path)
{
    const std::vector<std::string> files{path};
    CaptureBlocks blocks(files);
    SharedBlocks memory(1);
    Lines lines;
    std::size_t number = 0;
    while (blocks.fill(memory[0])) {
        memory[0].fetch();
        for (const Block::Part &part : memory[0].used_parts()) {
            number = part.line != 0 ? part.line : number;
            if (part.kind == Block::Part::Kind::too_long) {
                lines.emplace_back(number++, "too long");
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

/// What comes of 100 bytes that were left in an open file.
static Block &fetched(Block &block, const char *path)
{
    const int file = open(path, O_RDONLY);
    block.leave(0, {file, 2, 100});
    block.fetch();
    close(file);
    return block;
}

TEST(CaptureBlocks, LinesThatCannotBeFetched)
{
    SharedBlocks memory(1);
    const TemporaryFile file("0\n1\n2");
    const Block &shortened = fetched(memory[0], file.path().c_str());
    ASSERT_EQ(shortened.part_count, 1U);
    EXPECT_EQ(shortened.text_of(shortened.parts[0]), "1\n2");

    const Block &unreadable = fetched(memory[0], "/");
    ASSERT_EQ(unreadable.part_count, 2U);
    EXPECT_EQ(unreadable.text_of(unreadable.parts[0]), "");
    EXPECT_EQ(unreadable.parts[1].kind, Block::Part::Kind::failure);
    EXPECT_EQ(unreadable.text_of(unreadable.parts[1]), "Is a directory");
}

TEST(CaptureBlocks, ALineThatIsTooLongIsSkipped)
{
    const std::string longest(Block::longest_line, 'x');
    const std::string usual(2 * Block::usual_size, 'y'); // which are left in the file
    const TemporaryFile file(capture + '\n' + longest + '\n' + longest + "x\n" + longest + usual + '\n' + usual +
                             "\nlast\n" + longest + "xx");
    const Lines lines = lines_of(file.path());
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_TRUE(lines[1] == std::pair(std::size_t{2}, longest));
    // One more character fits into a block, where whoever reads the line refuses it.
    EXPECT_EQ(lines[2].second.substr(0, 20), longest.substr(0, 20));
    EXPECT_EQ(lines[3], std::pair(std::size_t{4}, std::string("too long")));
    EXPECT_TRUE(lines[4] == std::pair(std::size_t{5}, usual));
    EXPECT_EQ(lines[5], std::pair(std::size_t{6}, std::string("last")));
    EXPECT_EQ(lines[6], std::pair(std::size_t{7}, std::string("too long")));
}

} // namespace l2fib
