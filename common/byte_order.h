// The order of bytes and bits in a number.
#pragma once

#include <bit>
#include <cstdint>

namespace l2fib
{

inline constexpr bool host_is_big_endian = std::endian::native == std::endian::big;
static_assert(host_is_big_endian || std::endian::native == std::endian::little);

template <class Integer>
constexpr Integer byte_swapped(Integer value)
{
    if constexpr (sizeof value == 8) {
        return static_cast<Integer>(__builtin_bswap64(static_cast<std::uint64_t>(value)));
    } else if constexpr (sizeof value == 4) {
        return static_cast<Integer>(__builtin_bswap32(static_cast<std::uint32_t>(value)));
    } else if constexpr (sizeof value == 2) {
        return static_cast<Integer>(__builtin_bswap16(static_cast<std::uint16_t>(value)));
    } else {
        return value;
    }
}

/// A host's number from the bytes of a big-endian one, and these bytes from the host's number.
template <class Integer>
constexpr Integer from_big_endian(Integer value)
{
    return host_is_big_endian ? value : byte_swapped(value);
}

/// A word with its bits in reverse order.
template <class Word>
constexpr Word bits_reversed(Word word)
{
    constexpr Word pairs = static_cast<Word>(0x3333333333333333);
    constexpr Word nibbles = static_cast<Word>(0x0f0f0f0f0f0f0f0f);
    constexpr Word bits = static_cast<Word>(0x5555555555555555);
    word = static_cast<Word>((word >> 1 & bits) | (word & bits) << 1);
    word = static_cast<Word>((word >> 2 & pairs) | (word & pairs) << 2);
    word = static_cast<Word>((word >> 4 & nibbles) | (word & nibbles) << 4);
    return byte_swapped(word);
}

} // namespace l2fib
