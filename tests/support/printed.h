// What the library prints, and where its show data ends.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace l2fib
{

/// The text that a call leaves on standard output.
std::string printed(const std::function<void()> &call);

/// Bytes that end at an unreadable page, so that a read behind them ends the test.
class GuardedBytes
{
public:
    explicit GuardedBytes(const std::vector<std::uint8_t> &bytes);
    ~GuardedBytes();
    GuardedBytes(const GuardedBytes &) = delete;
    GuardedBytes &operator=(const GuardedBytes &) = delete;

    [[nodiscard]] std::uint8_t *data() const { return data_; }
    [[nodiscard]] std::size_t size() const { return size_; }

private:
    void *mapping_;
    std::size_t mapped_;
    std::uint8_t *data_;
    std::size_t size_;
};

/// What came of showing an object.
struct Shown {
    std::string text;
    std::uint32_t status = 0;

    bool operator==(const Shown &) const = default;
};
std::ostream &operator<<(std::ostream &out, const Shown &shown);

template <class Call>
Shown shown(const Call &call)
{
    Shown result;
    result.text = printed([&] { result.status = call(); });
    return result;
}

/// The detail view of an object, with a read behind its bytes ending the test.
Shown shown_detail(std::uint32_t objtype, std::uint32_t direction, const std::vector<std::uint8_t> &bytes);

/// A file below the sources.
std::string file_text(const std::string &path);

/// How often a text contains another.
unsigned occurrences(const std::string &text, const std::string &what);

} // namespace l2fib
