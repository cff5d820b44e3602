// A piece of the input, which one process does by itself: whole lines of one file or of several.
#pragma once

#include "client/file_part.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <string_view>
#include <sys/mman.h>

namespace l2fib
{

/// Calls for each line of a text, without its end.
template <class Function>
void for_each_line(std::string_view text, const Function &function)
{
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (!function(line)) {
            return;
        }
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
}

/// It lies in memory that processes share. Pages that were never written to take none.
struct Block {
    struct Part {
        enum class Kind : std::uint8_t {
            lines,    ///< of a file
            too_long, ///< a line that is longer than any capture; it is left out
            failure,  ///< why the rest of the file could not be read
            message,  ///< to be reported at this place
        };
        Kind kind;
        std::uint32_t file;
        std::size_t line;   ///< the number of the first one; 0 when they go on where those before have ended
        std::size_t offset; ///< in the text
        std::size_t size;
    };

    static constexpr std::size_t usual_size = std::size_t{1} << 20U;
    static constexpr std::size_t longest_line = (std::size_t{8} << 20U) + (std::size_t{64} << 10U);
    static constexpr std::size_t most_parts = 1024;

    std::size_t part_count;
    std::size_t size; ///< of the text
    FilePart unread;  ///< the only part of it, if any: bytes are best read where they are used
    std::array<Part, most_parts> parts;
    std::array<char, usual_size + longest_line + (std::size_t{64} << 10U)> text; ///< the rest is for messages

    [[nodiscard]] std::string_view text_of(const Part &part) const { return {&text[part.offset], part.size}; }
    [[nodiscard]] std::span<const Part> used_parts() const { return {parts.data(), part_count}; }
    [[nodiscard]] bool is_full() const { return size >= usual_size || part_count + 16 > most_parts; }

    /// Makes it a block of lines of a file that nobody has read.
    void leave(std::uint32_t file, const FilePart &lines);

    /// Reads what is still in its file.
    void fetch();

    /// The number of the line after the block, when it begins with this one.
    [[nodiscard]] std::size_t line_after(std::size_t line) const;
};

/// Blocks that this process and those it forks see alike.
class SharedBlocks
{
public:
    explicit SharedBlocks(std::size_t count)
        : size_(count * sizeof(Block)),
          memory_(mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        if (memory_ == MAP_FAILED) {
            throw std::bad_alloc();
        }
    }
    ~SharedBlocks() { munmap(memory_, size_); }
    SharedBlocks(const SharedBlocks &) = delete;
    SharedBlocks &operator=(const SharedBlocks &) = delete;

    Block &operator[](std::size_t index) { return static_cast<Block *>(memory_)[index]; }

private:
    std::size_t size_;
    void *memory_;
};

} // namespace l2fib
