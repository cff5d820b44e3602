#include "client/input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace l2fib
{

void Input::Close::operator()(std::FILE *file) const
{
    if (file != stdin) {
        std::fclose(file);
    }
}

Input::Input(const std::string &path)
    : file_(path == "-" ? stdin : std::fopen(path.c_str(), "rb")), buffer_(std::size_t{1} << 16U), path_(path)
{
    if (!file_) {
        error_ = path_ + ": " + std::strerror(errno);
    }
}

bool Input::fill()
{
    if (unread_.empty() && file_) {
        unread_ = {buffer_.data(), std::fread(buffer_.data(), 1, buffer_.size(), file_.get())};
        if (unread_.empty() && std::ferror(file_.get()) != 0) {
            error_ = path_ + ": " + std::strerror(errno);
        }
    }
    return !unread_.empty();
}

std::string Input::read_all(std::size_t longest)
{
    std::string text;
    while (text.size() <= longest && fill()) {
        const std::size_t count = std::min(unread_.size(), longest + 1 - text.size());
        text.append(unread_.substr(0, count));
        unread_.remove_prefix(count);
    }
    return text;
}

bool Input::next_line(std::string &text, std::size_t longest, Line &line)
{
    text.clear();
    line = Line::whole;
    bool any = false;
    bool ended = false;
    while (!ended && fill()) {
        any = true;
        const std::size_t end = unread_.find('\n');
        ended = end != std::string_view::npos;
        const std::string_view piece = unread_.substr(0, end);
        unread_.remove_prefix(ended ? end + 1 : unread_.size());
        if (text.size() + piece.size() > longest) {
            line = Line::too_long;
            text.clear();
        }
        if (line == Line::whole) {
            text.append(piece);
        }
    }
    return any;
}

} // namespace l2fib
