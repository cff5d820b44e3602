#include "client/screen.h"

#include <cerrno>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace l2fib
{

/// What standard output is while a Screen lives.
static std::FILE *screen_stream = nullptr;
static bool is_in_line = false;

/// Whether messages appear among the text.
static bool have_same_place()
{
    struct stat out {
    };
    struct stat err {
    };
    return (isatty(STDOUT_FILENO) != 0 && isatty(STDERR_FILENO) != 0) ||
           (fstat(STDOUT_FILENO, &out) == 0 && fstat(STDERR_FILENO, &err) == 0 && out.st_dev == err.st_dev &&
            out.st_ino == err.st_ino);
}

/// False when not all of it could be written.
static bool write_all(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = write(STDOUT_FILENO, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

static ssize_t write_to_screen(void * /*cookie*/, const char *bytes, std::size_t size)
{
    const std::string_view text(bytes, size);
    if (text.empty() || !write_all(text)) {
        return 0; // which is how the stream is told of a failure
    }
    is_in_line = text.back() != '\n';
    return static_cast<ssize_t>(size);
}

Screen::Screen()
{
    if (!have_same_place()) {
        return;
    }
    cookie_io_functions_t functions{};
    functions.write = write_to_screen;
    screen_stream = fopencookie(nullptr, "w", functions);
    if (screen_stream == nullptr) {
        throw std::system_error(errno, std::generic_category(), "standard output");
    }
    if (isatty(STDOUT_FILENO) != 0) {
        std::setvbuf(screen_stream, nullptr, _IOLBF, BUFSIZ);
    }
    own_ = std::exchange(stdout, screen_stream); // glibc lets stdout be another stream for a while
}

Screen::~Screen()
{
    if (own_ != nullptr) {
        stdout = own_;
        std::fclose(std::exchange(screen_stream, nullptr));
    }
}

void end_screen_line()
{
    if (screen_stream != nullptr) {
        std::fflush(screen_stream);
        if (std::exchange(is_in_line, false)) {
            std::fputc('\n', stderr);
        }
    }
}

} // namespace l2fib
