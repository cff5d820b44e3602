// Proves that a file comes in the lines that it has, that of a line above the limit nothing comes but that it was
// there, and that a whole file comes as far as its limit.
#include "client/input.h"
#include "fuzz/target.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>

namespace l2fib
{

/// A file in memory, under a name.
class MemoryFile
{
public:
    explicit MemoryFile(std::string_view content) : file_(memfd_create("lines", 0))
    {
        const auto size = static_cast<ssize_t>(content.size());
        require(file_ >= 0 && write(file_, content.data(), content.size()) == size, "there is a file");
    }
    ~MemoryFile() { close(file_); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
};

static void check_lines(const MemoryFile &file, std::string_view rest, std::size_t longest)
{
    Input input(file.path(), Compressed::never);
    while (const auto line = input.next_line(longest)) {
        require(!rest.empty(), "there are no more lines than the file has");
        const std::string_view expected = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(expected.size() + 1, rest.size()));
        const bool fits = expected.size() <= longest;
        require(line->is_too_long == !fits, "a line is too long when it does not fit");
        require(line->text == (fits ? expected : std::string_view{}), "the line is the file's");
    }
    require(rest.empty() && input.error().empty(), "all lines were read");
}

static void check_all(const MemoryFile &file, std::string_view content, std::size_t longest)
{
    Input input(file.path(), Compressed::never);
    require(input.read_all(longest) == content.substr(0, longest + 1), "the file is read as far as it is wanted");
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::size_t longest = data[0];
    const std::string_view content(reinterpret_cast<const char *>(data) + 1, size - 1);
    const l2fib::MemoryFile file(content);
    l2fib::check_lines(file, content, longest);
    l2fib::check_all(file, content, longest);
    return 0;
}
