// The one way out: all text of the library leaves through an Output.
#pragma once

#include "common/format.h"

#include <cstdint>
#include <cstdio>
#include <type_traits>

namespace l2fib
{

class Output
{
public:
    explicit Output(std::FILE *stream = stdout) : stream_(stream) {}

    /// Text as it stands. Returns the number of characters, as do the others.
    template <class... Args>
    int text(Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        return print(format.text(), printf_argument(args)...);
    }

    /// The blanks in front of a line.
    int indent(std::uint32_t level) { return text("%*s", static_cast<int>(2 * level), ""); }

    /// Opens a new line, and ends the one before; returns the column reached.
    int line(std::uint32_t level)
    {
        text("\n");
        return indent(level);
    }

    /// Opens a new line and prints its text.
    template <class... Args>
    void line(std::uint32_t level, Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        line(level);
        text<Args...>(format, args...);
    }

    /// The line that a show command begins with: there is none before it to end.
    template <class... Args>
    void first_line(std::uint32_t level, Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }

private:
    int print(const char *format, ...);

    std::FILE *stream_;
};

} // namespace l2fib
