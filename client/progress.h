// How far a long run has got, for somebody who waits for it.
#pragma once

#include <chrono>
#include <cstddef>

namespace l2fib
{

/// A line on standard error: only on a terminal, only when what is read goes elsewhere, and only after a while.
class Progress
{
public:
    Progress();

    /// One more line is done.
    void step();

    /// Takes the line away, before something else is written to standard error.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    bool wanted_;
    bool is_on_screen_ = false;
    std::size_t done_ = 0;
    Clock::time_point next_;
};

} // namespace l2fib
