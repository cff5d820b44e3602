// The numbers of lines, where it may take a while until those before are counted.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

namespace l2fib
{

class LineCounter
{
public:
    /// Begins with the line whose number is known already, or is asked for when somebody needs it.
    explicit LineCounter(std::size_t first) : first_(first) {}
    explicit LineCounter(std::function<std::size_t()> ask) : ask_(std::move(ask)) {}

    /// Begins again, with the line of this number.
    void begin(std::size_t number)
    {
        first_ = number;
        passed_ = 0;
    }
    void pass() { ++passed_; }

    /// The number that nobody has asked for; it is of no use any more after `begin`.
    void set_first(std::size_t number) { first_ = first_.value_or(number); }

    /// The number of the line that comes next.
    [[nodiscard]] std::size_t number()
    {
        if (!first_) {
            first_ = ask_();
        }
        return *first_ + passed_;
    }

private:
    std::function<std::size_t()> ask_;
    std::optional<std::size_t> first_;
    std::size_t passed_ = 0; ///< since then
};

} // namespace l2fib
