#include "client/parallel/turn.h"

#include "client/diagnostics.h"
#include "client/parallel/socket.h"

#include <unistd.h>

namespace l2fib
{

template <class Message>
static Message receive(int socket)
{
    Message message{};
    if (!receive_all(socket, &message, sizeof message)) {
        _exit(unusable);
    }
    return message;
}

std::size_t RingPlace::line()
{
    if (!line_) {
        line_ = receive<std::size_t>(before_);
    }
    return *line_;
}

Turn RingPlace::turn()
{
    static_cast<void>(line()); // which was sent before it
    return receive<Turn>(before_);
}

// Who is gone has had its last turn, or is missed by the next one.

void RingPlace::pass_line(std::size_t line) const
{
    send_all(after_, bytes_of(line));
}

void RingPlace::pass_turn(const Turn &turn)
{
    send_all(after_, bytes_of(turn));
    line_.reset();
}

} // namespace l2fib
