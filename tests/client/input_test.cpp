// Files as the client reads them, with lines that end wherever its buffer does, and longer ones.
#include "client/input.h"

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

constexpr std::size_t buffer = std::size_t{1} << 16U;

TEST(Input, LinesWhereverTheBufferEnds)
{
    for (std::size_t first = buffer - 2; first <= buffer + 1; ++first) {
        for (const std::size_t longest : {buffer - 1, buffer, 3 * buffer - 1, 3 * buffer}) {
            const std::string lines[] = {std::string(first, '1'),      "",  "23",
                                         std::string(3 * buffer, '4'), "5", std::string(buffer, '6')};
            std::string content;
            for (const std::string &line : lines) {
                content += (content.empty() ? "" : "\n") + line;
            }
            const TemporaryFile file(content);
            Input input(file.path());
            for (const std::string &line : lines) {
                const auto read = input.next_line(longest);
                ASSERT_TRUE(read);
                EXPECT_EQ(read->is_too_long, line.size() > longest);
                EXPECT_EQ(read->text, line.size() > longest ? "" : line);
            }
            EXPECT_FALSE(input.next_line(longest));
            EXPECT_EQ(input.error(), "");
            EXPECT_EQ(Input(file.path()).read_all(longest), content.substr(0, longest + 1));
        }
    }
}

} // namespace l2fib
