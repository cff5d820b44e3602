// Fields as they lie in the show data: big-endian, at any offset, converted to host order in place.
//
// Every type here has alignment 1, so a struct of them is exactly its layout.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace l2fib
{

static_assert(std::endian::native == std::endian::little, "to_host() turns every field round");

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

/// The bits of a word, from the other end.
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

/// An integer of the show data.
template <class Integer>
class Stored
{
public:
    using Value = Integer;

    /// The value of a field that is in host order: converted, or stored so by the producer.
    [[nodiscard]] constexpr Integer value() const { return std::bit_cast<Integer>(bytes); }
    constexpr operator Integer() const { return value(); }

    /// The value of a field that is, and stays, big-endian.
    [[nodiscard]] constexpr Integer from_wire() const
    {
        Stored converted = *this;
        converted.to_host();
        return converted.value();
    }

    constexpr void to_host() { bytes = std::bit_cast<decltype(bytes)>(byte_swapped(value())); }

    std::array<std::uint8_t, sizeof(Integer)> bytes;
};

using U16 = Stored<std::uint16_t>;
using U32 = Stored<std::uint32_t>;
using U64 = Stored<std::uint64_t>;
using S32 = Stored<std::int32_t>;

template <std::size_t size>
using Bytes = std::array<std::uint8_t, size>;

/// `count` neighbouring fields of a packed word, each `width` bits wide.
struct FieldRun {
    unsigned count;
    unsigned width;
};

constexpr FieldRun one_bit(unsigned count)
{
    return {count, 1};
}
constexpr FieldRun wide(unsigned width)
{
    return {1, width};
}

/// A word of packed bit-fields, described in the producer's order, for example Packed<U32, one_bit(23), wide(9)>.
///
/// The producer fills the big-endian word from its most significant bit downwards; the host fills its word from the
/// least significant bit upwards. Fields keep their values and their order, and are numbered from 0. Where they end
/// before the word does, the bytes behind them are no part of it and stay as received.
template <class Word, FieldRun... runs>
class Packed
{
    using Bits = typename Word::Value;
    static constexpr unsigned word_width = 8 * sizeof(Bits);
    static constexpr unsigned used_width = ((runs.count * runs.width) + ...);
    static_assert(used_width <= word_width);

    static constexpr unsigned field_count = (runs.count + ...);

    struct Field {
        unsigned start; // in the host's word
        unsigned width;
    };

    static constexpr std::array<Field, field_count> layout = [] {
        std::array<Field, field_count> fields{};
        unsigned next = 0;
        unsigned start = 0;
        for (const FieldRun run : {runs...}) {
            for (unsigned i = 0; i < run.count; ++i) {
                fields[next++] = {start, run.width};
                start += run.width;
            }
        }
        return fields;
    }();

    static constexpr auto wide_fields = [] {
        std::array<Field, ((runs.width == 1 ? 0 : runs.count) + ...)> fields{};
        std::copy_if(layout.begin(), layout.end(), fields.begin(), [](Field field) { return field.width != 1; });
        return fields;
    }();

    static constexpr Bits mask(Field field)
    {
        return static_cast<Bits>(static_cast<Bits>(~Bits{0}) >> (word_width - field.width));
    }

public:
    [[nodiscard]] constexpr Bits get(unsigned field) const
    {
        return static_cast<Bits>(word.value() >> layout[field].start) & mask(layout[field]);
    }
    [[nodiscard]] constexpr bool test(unsigned field) const { return get(field) != 0; }

    /// All at once: a bit for each field, set where the field is not zero.
    [[nodiscard]] constexpr std::uint32_t set_flags() const
    {
        std::uint32_t set = 0;
        unsigned field = 0;
        const auto add = [&](FieldRun run) {
            if (run.width == 1) {
                const Field all{layout[field].start, run.count};
                set |= static_cast<std::uint32_t>(word.value() >> all.start & mask(all)) << field;
                field += run.count;
                return;
            }
            for (const unsigned end = field + run.count; field < end; ++field) {
                set |= std::uint32_t{test(field)} << field;
            }
        };
        (add(runs), ...);
        return set;
    }

    constexpr void to_host()
    {
        // Turned round, every field is where the host has it; those of several bits are then the wrong way round.
        Bits host = bits_reversed(word.from_wire());
        for (const Field field : wide_fields) {
            const auto turned = static_cast<Bits>(static_cast<Bits>(host >> field.start) & mask(field));
            const auto value = static_cast<Bits>(bits_reversed(turned) >> (word_width - field.width));
            host = static_cast<Bits>((host & ~static_cast<Bits>(mask(field) << field.start)) | value << field.start);
        }
        const auto host_bytes = std::bit_cast<decltype(word.bytes)>(host);
        std::copy_n(host_bytes.begin(), (used_width + 7) / 8, word.bytes.begin());
    }

    /// The big-endian bits of a field that holds `value`: how a producer sets it.
    static constexpr Bits wire_bits(unsigned field, Bits value)
    {
        const unsigned wire_start = word_width - layout[field].width - layout[field].start;
        return static_cast<Bits>((value & mask(layout[field])) << wire_start);
    }

    Word word;
};

using U8 = Stored<std::uint8_t>;

template <FieldRun... runs>
using FlagWord = Packed<U32, runs...>;
template <FieldRun... runs>
using FlagByte = Packed<U8, runs...>;

/// A flag word of a hardware record. The hardware's documents number its flags by their bit of the big-endian word, 31
/// as the top bit, and so does this.
template <FieldRun... runs>
class HardwareFlags : public FlagWord<runs...>
{
public:
    [[nodiscard]] constexpr bool test(unsigned bit) const { return (this->word.value() >> (31 - bit) & 1U) != 0; }
    [[nodiscard]] constexpr std::uint32_t set_flags() const { return bits_reversed(this->word.value()); }
};

/// Converts neighbouring numbers of 16 bits in place, four at a time.
template <std::size_t count>
void halves_to_host(U16 (&numbers)[count])
{
    constexpr std::uint64_t low_bytes = 0x00ff00ff00ff00ff;
    constexpr std::size_t in_fours = count - count % 4;
    for (std::size_t i = 0; i < in_fours; i += 4) {
        std::uint64_t four = 0;
        std::memcpy(&four, &numbers[i], sizeof four);
        four = (four & low_bytes) << 8U | (four >> 8U & low_bytes);
        std::memcpy(&numbers[i], &four, sizeof four);
    }
    for (std::size_t i = in_fours; i < count; ++i) {
        numbers[i].to_host();
    }
}

/// Converts a field, or an array of fields, in place.
template <class Field>
constexpr void field_to_host(Field &field)
{
    if constexpr (requires { field.to_host(); }) {
        field.to_host();
    } else if constexpr (requires { halves_to_host(field); }) {
        halves_to_host(field);
    } else {
        for (auto &element : field) {
            element.to_host();
        }
    }
}

/// Converts several of them.
template <class... Fields>
constexpr void to_host(Fields &...fields)
{
    (field_to_host(fields), ...);
}

} // namespace l2fib
