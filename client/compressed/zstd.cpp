#include "client/compressed/decompressor.h"

#include <new>
#include <zstd.h>
#include <zstd_errors.h>

namespace l2fib
{

/// 128 MiB, which zstd -d reads without being asked to.
constexpr int widest_window = 27;

class ZstdDecompressor : public Decompressor
{
public:
    ZstdDecompressor()
    {
        if (!stream_ || ZSTD_isError(ZSTD_DCtx_setParameter(stream_.get(), ZSTD_d_windowLogMax, widest_window)) != 0) {
            throw std::bad_alloc();
        }
    }

    Step step(std::string_view compressed, std::span<char> room) override;

private:
    struct Free {
        void operator()(ZSTD_DStream *stream) const { ZSTD_freeDStream(stream); }
    };
    std::unique_ptr<ZSTD_DStream, Free> stream_{ZSTD_createDStream()};
};

static Decompressor::State state_of(std::size_t result)
{
    if (ZSTD_isError(result) == 0) {
        return result == 0 ? Decompressor::State::ended : Decompressor::State::going_on;
    }
    switch (ZSTD_getErrorCode(result)) {
    case ZSTD_error_frameParameter_windowTooLarge: return Decompressor::State::too_large;
    case ZSTD_error_memory_allocation: throw std::bad_alloc();
    default: return Decompressor::State::broken;
    }
}

Decompressor::Step ZstdDecompressor::step(std::string_view compressed, std::span<char> room)
{
    ZSTD_inBuffer in{compressed.data(), compressed.size(), 0};
    ZSTD_outBuffer out{room.data(), room.size(), 0};
    const State state = state_of(ZSTD_decompressStream(stream_.get(), &out, &in));
    return {in.pos, out.pos, state};
}

std::unique_ptr<Decompressor> zstd_decompressor()
{
    return std::make_unique<ZstdDecompressor>();
}

} // namespace l2fib
