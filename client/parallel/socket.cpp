#include "client/parallel/socket.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <system_error>
#include <unistd.h>

namespace l2fib
{

Descriptor::~Descriptor()
{
    if (number_ >= 0) {
        close(number_);
    }
}

SocketPair::SocketPair(int type)
{
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, type | SOCK_CLOEXEC, 0, ends) != 0) {
        throw std::system_error(errno, std::generic_category(), "sockets of other processes");
    }
    near = Descriptor(ends[0]);
    far = Descriptor(ends[1]);
}

bool send_all(int socket, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t size = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (size < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(size < 0 ? 0 : static_cast<std::size_t>(size));
    }
    return true;
}

bool receive_all(int socket, void *bytes, std::size_t size)
{
    ssize_t received = 0;
    do {
        received = recv(socket, bytes, size, MSG_WAITALL);
    } while (received < 0 && errno == EINTR);
    return received == static_cast<ssize_t>(size);
}

/// The number of a block, with room for a file next to it.
struct OrderMessage {
    OrderMessage() = default;
    OrderMessage(const OrderMessage &) = delete;
    OrderMessage &operator=(const OrderMessage &) = delete;

    std::size_t block = 0;
    iovec bytes{&block, sizeof block};
    alignas(cmsghdr) char file[CMSG_SPACE(sizeof(int))] = {};
    msghdr header{nullptr, 0, &bytes, 1, file, sizeof file, 0};
};

bool send_order(int socket, std::size_t block, int file)
{
    OrderMessage message;
    message.block = block;
    if (cmsghdr *first = CMSG_FIRSTHDR(&message.header); first != nullptr && file >= 0) {
        *first = {CMSG_LEN(sizeof file), SOL_SOCKET, SCM_RIGHTS};
        std::memcpy(CMSG_DATA(first), &file, sizeof file);
    } else {
        message.header.msg_controllen = 0;
    }
    ssize_t sent = 0;
    do {
        sent = sendmsg(socket, &message.header, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == sizeof block;
}

bool receive_order(int socket, Order &order)
{
    OrderMessage message;
    ssize_t received = 0;
    do {
        received = recvmsg(socket, &message.header, MSG_WAITALL | MSG_CMSG_CLOEXEC);
    } while (received < 0 && errno == EINTR);
    int file = -1;
    const cmsghdr *first = CMSG_FIRSTHDR(&message.header);
    if (first != nullptr && first->cmsg_type == SCM_RIGHTS && first->cmsg_len == CMSG_LEN(sizeof file)) {
        std::memcpy(&file, CMSG_DATA(first), sizeof file);
    }
    order = {message.block, Descriptor(file)};
    const bool has_lost_file = (message.header.msg_flags & MSG_CTRUNC) != 0; // no room for it among the open ones
    return received == sizeof message.block && !has_lost_file;
}

} // namespace l2fib
