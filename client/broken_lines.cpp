#include "client/broken_lines.h"

#include "client/wrong_input.h"

#include <utility>

namespace l2fib
{

void BrokenLines::add(std::string_view line, std::string message)
{
    if (messages_.empty()) {
        advice_ = other_than_captures(line);
    }
    messages_.push_back(std::move(message));
}

std::vector<std::string> BrokenLines::verdict(const std::string &file) const
{
    if (!advice_.empty()) {
        return {file + ": " + advice_};
    }
    if (are_enough()) {
        return {messages_.front(), file + ": no capture on its first " + std::to_string(enough) + " lines"};
    }
    return messages_;
}

} // namespace l2fib
