// What processes send to each other.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

namespace l2fib
{

/// A socket or a file, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor &&other) noexcept : number_(other.release()) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor();

    [[nodiscard]] int get() const { return number_; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

struct SocketPair {
    explicit SocketPair(int type);

    Descriptor near;
    Descriptor far;
};

/// Both are false when the other end is gone.
bool send_all(int socket, std::string_view bytes);
bool receive_all(int socket, void *bytes, std::size_t size);

/// What a process is to do.
struct Order {
    std::size_t block = 0;
    Descriptor file; ///< which the block is to be read from, if any
};

/// An order with a file that this process has open; -1 for none. False when the other end is gone, or the file is lost.
bool send_order(int socket, std::size_t block, int file);
bool receive_order(int socket, Order &order);

template <class Value>
std::string_view bytes_of(const Value &value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

} // namespace l2fib
