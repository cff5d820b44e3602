#include "client/parallel/block.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace l2fib
{

using Kind = Block::Part::Kind;

/// Reads up to the end of the file, should it have become shorter. The error, or 0.
static int read_at(const FilePart &unread, char *text, std::size_t &size)
{
    ssize_t count = 0;
    do {
        const off_t offset = unread.offset + static_cast<off_t>(size);
        count = pread(unread.descriptor, text + size, unread.size - size, offset);
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    } while (count < 0 ? errno == EINTR : count > 0 && size != unread.size);
    return count < 0 ? errno : 0;
}

void Block::leave(std::uint32_t file, const FilePart &lines)
{
    part_count = 1;
    parts[0] = {Kind::lines, file, 0, 0, lines.size};
    size = 0;
    unread = lines;
}

void Block::fetch()
{
    if (unread.descriptor < 0) {
        return;
    }
    const int error = read_at(unread, text.data(), size);
    unread.descriptor = -1;
    parts[0].size = size;
    if (error != 0) {
        const std::string_view why = std::strerror(error);
        parts[part_count++] = {Kind::failure, parts[0].file, 0, size, why.copy(&text[size], text.size() - size)};
        size += why.size();
    }
}

std::size_t Block::line_after(std::size_t line) const
{
    for (const Part &part : used_parts()) {
        line = part.line != 0 ? part.line : line;
        if (part.kind == Kind::too_long) {
            ++line;
        } else if (part.kind == Kind::lines) {
            for_each_line(text_of(part), [&line](std::string_view /*line*/) { return ++line != 0; });
        }
    }
    return line;
}

} // namespace l2fib
