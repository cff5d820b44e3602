#include "client/discarded_output.h"

#include <cerrno>
#include <sys/types.h>
#include <system_error>
#include <utility>

namespace l2fib
{

/// A stream whose text goes nowhere, without a call of the system as /dev/null takes.
static std::FILE *open_discarding()
{
    cookie_io_functions_t functions{};
    functions.write = [](void * /*cookie*/, const char * /*text*/, std::size_t size) {
        return static_cast<ssize_t>(size);
    };
    std::FILE *stream = fopencookie(nullptr, "w", functions);
    if (stream == nullptr) {
        throw std::system_error(errno, std::generic_category(), "views cannot be tried");
    }
    return stream;
}

// glibc lets stdout be another stream for a while.
DiscardedOutput::DiscardedOutput() : screen_(std::exchange(stdout, open_discarding())) {}

DiscardedOutput::~DiscardedOutput()
{
    std::fclose(std::exchange(stdout, screen_));
}

} // namespace l2fib
