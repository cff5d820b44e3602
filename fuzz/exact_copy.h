// Memory that ends where its bytes do.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace l2fib
{

/// Bytes in memory of exactly their size, so that the byte after them is nobody's.
class ExactCopy
{
public:
    explicit ExactCopy(std::span<const std::uint8_t> bytes)
        : bytes_(new std::uint8_t[bytes.size()]), size_(bytes.size())
    {
        std::copy(bytes.begin(), bytes.end(), bytes_.get());
    }

    [[nodiscard]] std::uint8_t *data() const { return bytes_.get(); }
    [[nodiscard]] std::size_t size() const { return size_; }

private:
    std::unique_ptr<std::uint8_t[]> bytes_;
    std::size_t size_;
};

} // namespace l2fib
