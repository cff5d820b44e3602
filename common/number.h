// Numbers of the show data. The type of a number says which byte order it has.
//
// Every type here has alignment 1, so a struct of them is exactly its layout, and a field may be at any offset.
#pragma once

#include "common/byte_order.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace l2fib
{

template <std::size_t size>
using Bytes = std::array<std::uint8_t, size>;

/// A number that arrives big-endian and is converted together with its record. Nobody can read it before: a Received
/// record hands out no fields (common/record.h).
template <class Integer>
struct Number {
    [[nodiscard]] constexpr Integer value() const { return std::bit_cast<Integer>(bytes); }
    constexpr operator Integer() const { return value(); }

    Bytes<sizeof(Integer)> bytes;
};

/// A number that is big-endian, and stays so in the caller's buffer.
template <class Integer>
struct BigEndian {
    [[nodiscard]] constexpr Integer value() const { return from_big_endian(std::bit_cast<Integer>(bytes)); }
    constexpr operator Integer() const { return value(); }

    Bytes<sizeof(Integer)> bytes;
};

/// A number that the line card's own software has stored, in the byte order of its processor.
template <class Integer>
struct AsStored {
    [[nodiscard]] constexpr Integer value() const { return std::bit_cast<Integer>(bytes); }
    constexpr operator Integer() const { return value(); }

    Bytes<sizeof(Integer)> bytes;
};

using U16 = Number<std::uint16_t>;
using U32 = Number<std::uint32_t>;
using U64 = Number<std::uint64_t>;
using S32 = Number<std::int32_t>;

using BigU16 = BigEndian<std::uint16_t>;
using BigU32 = BigEndian<std::uint32_t>;

using StoredU16 = AsStored<std::uint16_t>;
using StoredU32 = AsStored<std::uint32_t>;

using U8 = AsStored<std::uint8_t>; ///< a byte has no order

} // namespace l2fib
