#include "client/parallel/ordered_output.h"

#include "client/diagnostics.h"

#include <cerrno>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace l2fib
{

OrderedOutput::OrderedOutput(RingPlace &place, const char *separator)
    : place_(place), separator_(separator), screen_(stdout)
{
    cookie_io_functions_t functions{};
    functions.write = [](void *self, const char *text, std::size_t size) {
        auto &output = *static_cast<OrderedOutput *>(self);
        output.add(false, {text, size});
        return output.turn_.lost_output == 0 ? static_cast<ssize_t>(size) : 0; // which is how a stream is told
    };
    std::FILE *stream = fopencookie(this, "w", functions);
    if (stream == nullptr) {
        throw std::system_error(errno, std::generic_category(), "standard output");
    }
    std::setvbuf(stream, buffer_.get(), _IOFBF, buffer_size);
    stdout = stream; // glibc lets stdout be another stream for a while
    hold_messages(this);
}

OrderedOutput::~OrderedOutput()
{
    hold_messages(nullptr);
    std::fclose(std::exchange(stdout, screen_));
}

void OrderedOutput::hold(std::string_view message)
{
    std::fflush(stdout); // which was printed before it
    add(true, message);
}

void OrderedOutput::add(bool is_message, std::string_view text)
{
    if (has_turn_) {
        return write(is_message, text);
    }
    if (held_.empty() || held_.back().is_message != is_message) {
        held_.push_back({is_message, {}});
    }
    held_.back().text += text;
    held_size_ += text.size();
    if (held_size_ > most_held) {
        take_turn();
    }
}

void OrderedOutput::take_turn()
{
    if (has_turn_) {
        return;
    }
    turn_ = place_.turn();
    has_turn_ = true;
    set_in_screen_line(turn_.is_in_line);
    progress_state() = turn_.progress;
    for (const Piece &piece : held_) {
        write(piece.is_message, piece.text);
    }
    held_.clear();
    held_size_ = 0;
}

void OrderedOutput::write(bool is_message, std::string_view text)
{
    if (is_message) {
        hold_messages(nullptr);
        write_message(text);
        hold_messages(this);
    } else if (turn_.lost_output == 0) {
        write_text(text);
    }
}

void OrderedOutput::write_text(std::string_view text)
{
    errno = 0;
    if (!std::exchange(has_written_, true) && turn_.has_text) {
        std::fputs(separator_, screen_);
    }
    turn_.has_text = true;
    std::fwrite(text.data(), 1, text.size(), screen_);
    if (std::fflush(screen_) != 0 || std::ferror(screen_) != 0) {
        turn_.lost_output = errno;
    }
}

void OrderedOutput::end_block(std::size_t lines)
{
    take_turn();
    std::fflush(stdout);
    step_progress(lines);
    turn_.is_in_line = is_in_screen_line();
    turn_.progress = progress_state();
    has_written_ = false;
}

void OrderedOutput::pass_turn()
{
    has_turn_ = false;
    place_.pass_turn(turn_);
}

} // namespace l2fib
