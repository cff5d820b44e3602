// The files that the client reads, in pieces, so that a long one takes no more memory than a short one.
#pragma once

#include "client/byte_source.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

/// A file, or standard input for "-". The texts that it returns are valid until it is read on.
class Input
{
public:
    explicit Input(const std::string &path, Compressed compressed = Compressed::by_magic)
        : source_(path, compressed), buffer_(std::size_t{1} << 16U)
    {
    }
    Input(const Input &) = delete;
    Input &operator=(const Input &) = delete;

    /// What is left of it, up to one byte more than `longest`.
    std::string_view read_all(std::size_t longest);

    struct Line {
        std::string_view text; ///< without its end
        bool is_too_long;      ///< and has no text
    };

    /// The next line, of at most `longest` bytes; none at the end of the file. What is left of a line where nothing
    /// more can be read is none.
    std::optional<Line> next_line(std::size_t longest);

    /// Why nothing more could be read; empty when all was.
    [[nodiscard]] const std::string &error() const { return source_.error(); }

private:
    /// Adds to what is unread; false when there is nothing to add.
    bool read_on();

    std::string_view take(std::size_t size);

    ByteSource source_;
    bool is_at_end_ = false;
    std::vector<char> buffer_;
    std::string_view unread_; // of the buffer
};

} // namespace l2fib
