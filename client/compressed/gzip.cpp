#include "client/compressed/decompressor.h"

#include <algorithm>
#include <limits>
#include <new>

#define ZLIB_CONST // it reads what it is given
#include <zlib.h>

namespace l2fib
{

class GzipDecompressor : public Decompressor
{
public:
    GzipDecompressor()
    {
        constexpr int gzip_of_any_window = 16 + MAX_WBITS;
        if (inflateInit2(&stream_, gzip_of_any_window) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~GzipDecompressor() override { inflateEnd(&stream_); }
    GzipDecompressor(const GzipDecompressor &) = delete;
    GzipDecompressor &operator=(const GzipDecompressor &) = delete;

    Step step(std::string_view compressed, std::span<char> room) override;

private:
    z_stream stream_{};
};

static uInt at_most_32_bits(std::size_t size)
{
    return static_cast<uInt>(std::min<std::size_t>(size, std::numeric_limits<uInt>::max()));
}

Decompressor::Step GzipDecompressor::step(std::string_view compressed, std::span<char> room)
{
    const uInt available = at_most_32_bits(compressed.size());
    const uInt wanted = at_most_32_bits(room.size());
    stream_.next_in = reinterpret_cast<const Bytef *>(compressed.data());
    stream_.avail_in = available;
    stream_.next_out = reinterpret_cast<Bytef *>(room.data());
    stream_.avail_out = wanted;
    const int result = inflate(&stream_, Z_NO_FLUSH);
    Step step{available - stream_.avail_in, wanted - stream_.avail_out, State::going_on};
    if (result == Z_STREAM_END) {
        inflateReset(&stream_);
        step.state = State::ended;
    } else if (result == Z_MEM_ERROR) {
        throw std::bad_alloc();
    } else if (result != Z_OK && result != Z_BUF_ERROR) {
        step.state = State::broken;
    }
    return step;
}

std::unique_ptr<Decompressor> gzip_decompressor()
{
    return std::make_unique<GzipDecompressor>();
}

} // namespace l2fib
