#include "client/compressed/decompressor.h"

#include <lzma.h>
#include <new>

namespace l2fib
{

/// What xz -9 needs, and a little more.
constexpr std::uint64_t most_memory = std::uint64_t{68} << 20U;

class XzDecompressor : public Decompressor
{
public:
    XzDecompressor() { begin(); }
    ~XzDecompressor() override { lzma_end(&stream_); }
    XzDecompressor(const XzDecompressor &) = delete;
    XzDecompressor &operator=(const XzDecompressor &) = delete;

    Step step(std::string_view compressed, std::span<char> room) override;

private:
    void begin()
    {
        if (lzma_stream_decoder(&stream_, most_memory, 0) != LZMA_OK) {
            throw std::bad_alloc();
        }
    }

    lzma_stream stream_ = LZMA_STREAM_INIT;
};

Decompressor::Step XzDecompressor::step(std::string_view compressed, std::span<char> room)
{
    stream_.next_in = reinterpret_cast<const std::uint8_t *>(compressed.data());
    stream_.avail_in = compressed.size();
    stream_.next_out = reinterpret_cast<std::uint8_t *>(room.data());
    stream_.avail_out = room.size();
    const lzma_ret result = lzma_code(&stream_, LZMA_RUN);
    Step step{compressed.size() - stream_.avail_in, room.size() - stream_.avail_out, State::going_on};
    if (result == LZMA_STREAM_END) {
        begin();
        step.state = State::ended;
    } else if (result == LZMA_MEMLIMIT_ERROR) {
        step.state = State::too_large;
    } else if (result == LZMA_MEM_ERROR) {
        throw std::bad_alloc();
    } else if (result != LZMA_OK && result != LZMA_BUF_ERROR) {
        step.state = State::broken;
    }
    return step;
}

std::unique_ptr<Decompressor> xz_decompressor()
{
    return std::make_unique<XzDecompressor>();
}

} // namespace l2fib
