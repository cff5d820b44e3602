// How far a long run has got, for somebody who waits for it: a line on standard error, only on a terminal, only when
// what is read goes elsewhere, and only after a while.
#pragma once

#include <chrono>
#include <cstddef>

namespace l2fib
{

/// Of all processes that take part in the run.
struct ProgressState {
    std::size_t lines = 0;
    bool is_on_screen = false;
    std::chrono::steady_clock::time_point next = std::chrono::steady_clock::now() + std::chrono::seconds(2);
};
ProgressState &progress_state();

/// So many more lines are done.
void step_progress(std::size_t lines);

/// Takes the line away, before something else is written to standard error.
void clear_progress();

} // namespace l2fib
