// Short texts that are made when they are printed.
#pragma once

#include "common/literal.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace l2fib
{

/// A short text after which there is room, so that it may be copied in blocks.
class RoomyText : public ShortText
{
public:
    using ShortText::ShortText;
};

/// The text of one item.
struct Text {
    static constexpr std::size_t capacity = 64;
    static_assert(capacity <= longest_short_text);

    Text() = default;
    Text(std::string_view text) : size(std::min(text.size(), capacity)) { std::memcpy(chars, text.data(), size); }

    [[nodiscard]] RoomyText view() const { return {chars, size}; }

    char chars[capacity];
    std::size_t size = 0;
};

} // namespace l2fib
