// What undoes one kind of compression, in pieces.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace l2fib
{

class Decompressor
{
public:
    enum class State : std::uint8_t {
        going_on,
        ended,     ///< nothing is missing here; another stream may come after this one
        broken,    ///< at the first byte that was not taken
        too_large, ///< for the memory that it may have
    };
    struct Step {
        std::size_t taken; ///< of the compressed bytes
        std::size_t given; ///< of the room
        State state;
    };

    Decompressor() = default;
    virtual ~Decompressor() = default;
    Decompressor(const Decompressor &) = delete;
    Decompressor &operator=(const Decompressor &) = delete;

    /// Takes and gives what it can. After the end of a stream, it begins with the next one.
    virtual Step step(std::string_view compressed, std::span<char> room) = 0;
};

// Those that this build has a library for.
std::unique_ptr<Decompressor> gzip_decompressor();
std::unique_ptr<Decompressor> xz_decompressor();
std::unique_ptr<Decompressor> zstd_decompressor();

} // namespace l2fib
