// The lines of a file that are no captures.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

/// What is wrong with lines is held until the file's first capture: a file that has none is one mistake, not one for
/// each line.
class BrokenLines
{
public:
    /// A line without a capture, and what to say of it.
    void add(std::string_view line, std::string message);

    /// So many lines that the file is taken for something else.
    [[nodiscard]] bool are_enough() const { return messages_.size() == enough; }

    /// What to say of the lines, when a capture comes after them.
    [[nodiscard]] const std::vector<std::string> &messages() const { return messages_; }

    /// What to say of a file that has no more than them.
    [[nodiscard]] std::vector<std::string> verdict(const std::string &file) const;

private:
    static constexpr std::size_t enough = 10;

    std::vector<std::string> messages_;
    std::string advice_; ///< for the whole file
};

} // namespace l2fib
