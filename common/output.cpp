#include "common/output.h"

#include <algorithm>
#include <cstdarg>

namespace l2fib
{

// Format has compared the format with its arguments.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
int Output::print(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const int printed = std::vfprintf(stream_, format, args);
    va_end(args);
    return std::max(printed, 0);
}
#pragma GCC diagnostic pop

} // namespace l2fib
