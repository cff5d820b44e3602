#include "common/text_writer.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

void TextWriter::flush()
{
    const auto size = static_cast<std::size_t>(next_ - buffer_);
    std::fwrite(buffer_, 1, size, stream_); // whoever owns the stream looks at its error flag
    next_ = buffer_;
}

void TextWriter::put_many(char c, std::uint64_t count)
{
    while (count != 0) {
        reserve(1);
        const auto room = static_cast<std::size_t>(buffer_ + buffer_size - next_);
        const auto fitting = static_cast<std::size_t>(std::min<std::uint64_t>(count, room));
        std::memset(next_, c, fitting);
        next_ += fitting;
        count -= fitting;
    }
}

void TextWriter::put_long_string(std::string_view string)
{
    if (string.size() <= buffer_size) {
        reserve(string.size());
        next_ = copy(next_, string.data(), string.size());
    } else {
        flush();
        std::fwrite(string.data(), 1, string.size(), stream_);
    }
}

} // namespace l2fib
