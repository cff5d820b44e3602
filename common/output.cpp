#include "common/output.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

void Output::flush()
{
    const auto size = static_cast<std::size_t>(next_ - buffer_);
    std::fwrite(buffer_, 1, size, stream_); // what does not arrive is the stream's to tell its owner
    flushed_ += size;
    next_ = buffer_;
}

int Output::many_blanks(std::uint64_t count)
{
    for (std::uint64_t left = count; left != 0;) {
        reserve(1);
        const auto fitting = std::min<std::uint64_t>(left, static_cast<std::size_t>(buffer_ + buffer_size - next_));
        std::memset(next_, ' ', fitting);
        next_ += fitting;
        left -= fitting;
    }
    return static_cast<int>(count);
}

void Output::put_string(const Conversion &conversion, std::string_view string, std::size_t room)
{
    const std::size_t size = string.size();
    const std::size_t padding = conversion.width > size ? conversion.width - size : 0;
    if (!conversion.left_aligned) {
        blanks(static_cast<std::int64_t>(padding));
    }
    if (size <= buffer_size) {
        reserve(size);
        next_ = copy(next_, string.data(), size);
    } else {
        flush();
        flushed_ += std::fwrite(string.data(), 1, size, stream_);
    }
    if (conversion.left_aligned) {
        blanks(static_cast<std::int64_t>(padding));
    }
    reserve(room);
}

} // namespace l2fib
