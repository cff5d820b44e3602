// Words of packed bit-fields.
#pragma once

#include "common/number.h"
#include "common/recording.h"

#include <algorithm>

namespace l2fib
{

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

/// A word of packed bit-fields, described in the producer's order, for example FlagWord<one_bit(23), wide(9)>. Like a
/// Number, it is converted together with its record.
///
/// The producer fills the big-endian word from its most significant bit downwards. A little-endian host fills its word
/// from the least significant bit upwards, as its compilers do with bit-fields; a big-endian one does as the producer.
/// Fields keep their values and their order, and are numbered from 0. Bytes of the word after its last field stay as
/// received.
template <class Word, FieldRun... runs>
class Packed
{
    static constexpr unsigned word_width = 8 * sizeof(Word);
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
                fields[next++] = {host_is_big_endian ? word_width - run.width - start : start, run.width};
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

    static constexpr Word mask(Field field)
    {
        return static_cast<Word>(static_cast<Word>(~Word{0}) >> (word_width - field.width));
    }

public:
    /// The whole word, after conversion.
    [[nodiscard]] constexpr Word word() const { return std::bit_cast<Word>(bytes); }

    [[nodiscard]] constexpr FromField<Word> get(unsigned field, const char *key = nullptr) const
    {
        const Word value = static_cast<Word>(word() >> layout[field].start) & mask(layout[field]);
        return from_field(value, *this, key);
    }
    [[nodiscard]] constexpr FromField<bool> test(unsigned field, const char *key = nullptr) const
    {
        return from_field(get(field) != 0, *this, key);
    }

    /// All fields at once: a bit for each, set when the field is not zero.
    [[nodiscard]] constexpr std::uint32_t set_flags() const
    {
        std::uint32_t set = 0;
        unsigned field = 0;
        const auto add = [&](FieldRun run) {
            if (run.width == 1) {
                const Field all{layout[host_is_big_endian ? field + run.count - 1 : field].start, run.count};
                const auto bits = static_cast<std::uint32_t>(word() >> all.start & mask(all));
                set |= (host_is_big_endian ? bits_reversed(bits) >> (32 - run.count) : bits) << field;
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
        if constexpr (host_is_big_endian) {
            return;
        }
        // Reversing all bits puts every field in its place. Wide fields are then taken from the word as it was
        // received, where their bits are in the order of a number's.
        const Word received = byte_swapped(word());
        Word host = bits_reversed(received);
        for (const Field field : wide_fields) {
            const auto value = static_cast<Word>(received >> (word_width - field.width - field.start) & mask(field))
                               << field.start;
            host = static_cast<Word>((host & ~static_cast<Word>(mask(field) << field.start)) | value);
        }
        const auto host_bytes = std::bit_cast<decltype(bytes)>(host);
        std::copy_n(host_bytes.begin(), (used_width + 7) / 8, bytes.begin());
    }

    /// A big-endian word with `value` in one field, as a producer sets it.
    static constexpr Word wire_bits(unsigned field, Word value)
    {
        const Field &in_host = layout[field];
        const unsigned start = host_is_big_endian ? in_host.start : word_width - in_host.width - in_host.start;
        return static_cast<Word>((value & mask(in_host)) << start);
    }

    Bytes<sizeof(Word)> bytes;
};

template <FieldRun... runs>
using FlagWord = Packed<std::uint32_t, runs...>;
template <FieldRun... runs>
using FlagByte = Packed<std::uint8_t, runs...>;

/// A flag word of a hardware record. As in the hardware's documents, its flags are numbered by their bit in the
/// big-endian word; the top bit is 31.
template <FieldRun... runs>
class HardwareFlags : public FlagWord<runs...>
{
public:
    [[nodiscard]] constexpr FromField<bool> test(unsigned bit, const char *key = nullptr) const
    {
        const unsigned place = host_is_big_endian ? bit : 31 - bit;
        return from_field((this->word() >> place & 1U) != 0, *this, key);
    }
    [[nodiscard]] constexpr std::uint32_t set_flags() const
    {
        return host_is_big_endian ? this->word() : bits_reversed(this->word());
    }
};

} // namespace l2fib
