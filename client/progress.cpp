#include "client/progress.h"

#include <cstdio>
#include <unistd.h>

namespace l2fib
{

using namespace std::chrono_literals;

ProgressState &progress_state()
{
    static ProgressState state;
    return state;
}

void step_progress(std::size_t lines)
{
    static const bool is_wanted = isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    ProgressState &state = progress_state();
    state.lines += lines;
    const auto now = std::chrono::steady_clock::now();
    if (!is_wanted || now < state.next) {
        return;
    }
    std::fprintf(stderr, "\rl2fib-show: %zu lines", state.lines);
    state.is_on_screen = true;
    state.next = now + 500ms;
}

void clear_progress()
{
    if (progress_state().is_on_screen) {
        std::fprintf(stderr, "\r%40s\r", "");
        progress_state().is_on_screen = false;
    }
}

} // namespace l2fib
