#include "client/progress.h"

#include <cstdio>
#include <unistd.h>

namespace l2fib
{

using namespace std::chrono_literals;

Progress::Progress() : wanted_(isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0), next_(Clock::now() + 2s) {}

void Progress::step()
{
    constexpr std::size_t lines_between_looks = 256;
    if (!wanted_ || ++done_ % lines_between_looks != 0 || Clock::now() < next_) {
        return;
    }
    std::fprintf(stderr, "\rl2fib-show: %zu lines", done_);
    is_on_screen_ = true;
    next_ = Clock::now() + 500ms;
}

void Progress::clear()
{
    if (is_on_screen_) {
        std::fprintf(stderr, "\r%40s\r", "");
        is_on_screen_ = false;
    }
}

} // namespace l2fib
