#include "client/screen.h"

#include "client/harmless_text.h"
#include "client/progress.h"

#include <array>
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
static bool has_messages = false; // among its text
static bool is_in_line = false;
static bool is_made_harmless = false;
static HarmlessText harmless_text;
static MessageHolder *message_holder = nullptr;

/// Whether messages appear among the text.
static bool have_same_place()
{
    using FileStatus = struct stat;
    FileStatus out{};
    FileStatus err{};
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
    if (text.empty() || !write_all(is_made_harmless ? harmless_text.add(text) : text)) {
        return 0; // which is how the stream is told of a failure
    }
    is_in_line = text.back() != '\n';
    return static_cast<ssize_t>(size);
}

Screen::Screen()
{
    const bool is_terminal = isatty(STDOUT_FILENO) != 0;
    has_messages = have_same_place();
    if (!is_terminal && !has_messages) {
        return;
    }
    cookie_io_functions_t functions{};
    functions.write = write_to_screen;
    screen_stream = fopencookie(nullptr, "w", functions);
    if (screen_stream == nullptr) {
        throw std::system_error(errno, std::generic_category(), "standard output");
    }
    is_made_harmless = is_terminal;
    if (is_terminal) {
        static std::array<char, 1024>
            lines; // as for any terminal: in a longer one, each line would be written by itself
        std::setvbuf(screen_stream, lines.data(), _IOLBF, lines.size());
    }
    own_ = std::exchange(stdout, screen_stream); // glibc lets stdout be another stream for a while
}

Screen::~Screen()
{
    if (own_ != nullptr) {
        stdout = own_;
        std::fclose(std::exchange(screen_stream, nullptr));
        write_all(harmless_text.finish());
    }
}

/// What is still in a buffer was written under the other rule.
static bool change_rule(bool made_harmless)
{
    if (screen_stream != nullptr) {
        std::fflush(screen_stream);
    }
    return std::exchange(is_made_harmless, made_harmless);
}

UnchangedText::UnchangedText() : was_changed_(change_rule(false)) {}

UnchangedText::~UnchangedText()
{
    change_rule(was_changed_);
}

static void end_screen_line()
{
    if (screen_stream != nullptr && has_messages) {
        std::fflush(screen_stream);
        if (std::exchange(is_in_line, false)) {
            std::fputc('\n', stderr);
        }
    }
}

void write_message(std::string_view message)
{
    if (message_holder != nullptr) {
        return message_holder->hold(message);
    }
    clear_progress();
    end_screen_line();
    std::fwrite(message.data(), 1, message.size(), stderr);
}

void hold_messages(MessageHolder *holder)
{
    message_holder = holder;
}

bool is_in_screen_line()
{
    return is_in_line;
}

void set_in_screen_line(bool is_in)
{
    is_in_line = is_in;
}

} // namespace l2fib
