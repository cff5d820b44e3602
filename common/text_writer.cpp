#include "common/text_writer.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

void TextWriter::write_out()
{
    std::fwrite(buffer_, 1, static_cast<std::size_t>(next_ - buffer_), stream_); // its owner looks at its error flag
    next_ = buffer_;
}

void TextWriter::repeat_often(char c, std::uint64_t count)
{
    while (count != 0) {
        char *at = room_for(1);
        const auto room = static_cast<std::size_t>(buffer_ + buffer_size - at);
        const auto fitting = static_cast<std::size_t>(std::min<std::uint64_t>(count, room));
        std::memset(at, c, fitting);
        next_ = at + fitting;
        count -= fitting;
    }
}

void TextWriter::continue_at(std::int64_t column)
{
    constexpr std::size_t few = 64;
    char *at = copy(room_for(2 + few), ",\n", 2);
    if (column >= 0 && column <= std::int64_t{few}) {
        std::memset(at, ' ', few);
        next_ = at + column;
    } else {
        next_ = at;
        blanks(column);
    }
}

char *TextWriter::begin_deep_line(std::uint32_t level, std::size_t size)
{
    *room_for(1) = '\n';
    ++next_;
    indent(level);
    return room_for(size);
}

/// Prints a string of any length. Returns where the next characters go, for which it makes room.
char *TextWriter::put_long_string(std::string_view string, std::size_t room_after)
{
    if (string.size() <= buffer_size) {
        next_ = copy(room_for(string.size()), string.data(), string.size());
    } else {
        flush();
        std::fwrite(string.data(), 1, string.size(), stream_);
    }
    return room_for(room_after);
}

} // namespace l2fib
