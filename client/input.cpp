#include "client/input.h"

#include <algorithm>
#include <span>

namespace l2fib
{

bool Input::read_on()
{
    if (is_at_end_) {
        return false;
    }
    std::copy(unread_.begin(), unread_.end(), buffer_.begin());
    if (unread_.size() == buffer_.size()) {
        buffer_.resize(2 * buffer_.size());
    }
    const std::size_t count = source_.read(std::span(buffer_).subspan(unread_.size()));
    is_at_end_ = count == 0;
    unread_ = {buffer_.data(), unread_.size() + count};
    return count != 0;
}

std::string_view Input::take(std::size_t size)
{
    const std::string_view taken = unread_.substr(0, size);
    unread_.remove_prefix(taken.size());
    return taken;
}

std::string_view Input::read_all(std::size_t longest)
{
    while (unread_.size() <= longest && read_on()) {
    }
    return take(longest + 1);
}

std::optional<Input::Line> Input::next_line(std::size_t longest)
{
    bool is_too_long = false;
    std::size_t end = unread_.find('\n');
    while (end == std::string_view::npos) {
        std::size_t searched = unread_.size();
        if (searched > longest) { // from here on, only its end is of interest
            is_too_long = true;
            searched -= take(searched).size();
        }
        if (!read_on()) {
            break;
        }
        end = unread_.find('\n', searched);
    }
    const bool is_ended = end != std::string_view::npos;
    std::string_view text = take(end);
    if (!is_ended && ((text.empty() && !is_too_long) || !error().empty())) {
        return std::nullopt;
    }
    take(is_ended ? 1 : 0);
    is_too_long = is_too_long || text.size() > longest;
    return Line{is_too_long ? std::string_view{} : text, is_too_long};
}

} // namespace l2fib
