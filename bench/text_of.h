// Catches what is printed.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace l2fib
{

/// What a call prints. (glibc lets stdout be another stream for a while.)
template <class Call>
std::string text_of(const Call &call)
{
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *screen = std::exchange(stdout, open_memstream(&text, &size));
    call();
    std::fclose(std::exchange(stdout, screen));
    std::string copy(text, size);
    std::free(text);
    return copy;
}

} // namespace l2fib
