// The files that the client reads, in pieces, so that a long one takes no more memory than a short one.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

/// A file, or standard input for "-".
class Input
{
public:
    explicit Input(const std::string &path);

    /// What is left of it, up to one byte more than `longest`.
    std::string read_all(std::size_t longest);

    enum class Line : bool { whole, too_long };

    /// Whether there is another line: its text without its end, or nothing of one that is longer than `longest`.
    bool next_line(std::string &text, std::size_t longest, Line &line);

    /// Why nothing more could be read; empty when all was.
    [[nodiscard]] const std::string &error() const { return error_; }

private:
    /// Whether there is anything left in the buffer, or read into it anew.
    bool fill();

    struct Close {
        void operator()(std::FILE *file) const;
    };

    std::unique_ptr<std::FILE, Close> file_;
    std::vector<char> buffer_;
    std::string_view unread_; // of the buffer
    std::string path_;
    std::string error_;
};

} // namespace l2fib
