// A piece of the input, which one process does by itself: whole lines of one file or of several.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <string_view>
#include <sys/mman.h>

namespace l2fib
{

/// It lies in memory that processes share. Pages that were never written to take none.
struct Block {
    struct Part {
        enum class Kind : std::uint8_t {
            lines,   ///< of a file
            message, ///< to be reported at this place
        };
        Kind kind;
        std::uint32_t file;
        std::size_t line;   ///< the number of the first one
        std::size_t offset; ///< in the text
        std::size_t size;
    };

    static constexpr std::size_t usual_size = std::size_t{1} << 19U;
    static constexpr std::size_t longest_line = (std::size_t{8} << 20U) + (std::size_t{64} << 10U);
    static constexpr std::size_t most_parts = 1024;

    std::size_t part_count;
    std::size_t size; ///< of the text
    std::array<Part, most_parts> parts;
    std::array<char, usual_size + longest_line + (std::size_t{64} << 10U)> text; ///< the rest is for messages

    [[nodiscard]] std::string_view text_of(const Part &part) const { return {&text[part.offset], part.size}; }
    [[nodiscard]] std::span<const Part> used_parts() const { return {parts.data(), part_count}; }
    [[nodiscard]] bool is_full() const { return size >= usual_size || part_count + 16 > most_parts; }
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
