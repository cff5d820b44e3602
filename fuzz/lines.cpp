// Proves that the lines of a file come as they are, and that a file of any content comes to an end.
#include "client/capture_blocks.h"
#include "fuzz/target.h"

#include <sys/mman.h>
#include <unistd.h>

namespace l2fib
{

static Block &block_memory()
{
    static SharedBlocks memory(1);
    return memory[0];
}

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

/// Lines after a capture come as they are, each once and with its number, however they are cut into blocks.
static void check_lines(std::string_view content)
{
    const std::string all = R"({"object":"ac","show_data":""})"
                            "\n" +
                            std::string(content);
    const MemoryFile file(all);
    const std::vector<std::string> files{file.path()};
    CaptureBlocks blocks(files);
    std::string read;
    for (Block &block = block_memory(); blocks.fill(block);) {
        block.fetch();
        for (const Block::Part &part : block.used_parts()) {
            const std::size_t line = read.empty() ? 1 : 0;
            require(part.kind == Block::Part::Kind::lines && part.line == line, "the lines follow each other");
            read += block.text_of(part);
        }
    }
    require(read == all, "all lines were read");
}

/// Whatever the file is, compressed or broken, it comes to an end.
static void check_any(std::string_view content)
{
    const MemoryFile file(content);
    const std::vector<std::string> files{file.path()};
    CaptureBlocks blocks(files);
    while (blocks.fill(block_memory())) {
    }
    const WholeFile whole = read_whole_file(file.path(), content.size(), Compressed::never);
    require(std::string_view(whole.content.data(), whole.content.size()) == content, "the file is read as a whole");
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view content(reinterpret_cast<const char *>(data), size);
    l2fib::check_lines(content);
    l2fib::check_any(content);
    return 0;
}
