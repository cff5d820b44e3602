// Standard output while nobody wants it.
#pragma once

#include <cstdio>

namespace l2fib
{

/// Discards what is printed as long as it lives: nothing of it is kept.
class DiscardedOutput
{
public:
    DiscardedOutput();
    ~DiscardedOutput();
    DiscardedOutput(const DiscardedOutput &) = delete;
    DiscardedOutput &operator=(const DiscardedOutput &) = delete;

private:
    std::FILE *screen_;
};

} // namespace l2fib
