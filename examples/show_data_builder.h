// Composes show data as the producer does: big-endian, field by field.
#pragma once

#include "common/stored.h"
#include "hw/uidb_entry.h"

#include <initializer_list>
#include <vector>

namespace l2fib
{

/// A number, big-endian.
template <class Integer>
void set(Stored<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(value);
    field.to_host(); // turning round is its own opposite
}

/// A number in the byte order of the line card's own processor.
template <class Integer>
void set_as_stored(Stored<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(value);
}

/// One field of a packed word.
template <class Word, FieldRun... runs>
void set_field(Packed<Word, runs...> &packed, unsigned field, typename Word::Value value)
{
    using Bits = typename Word::Value;
    const auto others =
        static_cast<Bits>(packed.word.from_wire() & ~packed.wire_bits(field, static_cast<Bits>(~Bits{0})));
    set(packed.word, static_cast<Bits>(others | packed.wire_bits(field, value)));
}

/// Flags of a packed word.
template <class Word, FieldRun... runs>
void set_flags(Packed<Word, runs...> &packed, std::initializer_list<unsigned> fields)
{
    for (const unsigned field : fields) {
        set_field(packed, field, 1);
    }
}

/// Flags of a hardware record.
template <FieldRun... runs>
void set_flags(HardwareFlags<runs...> &flags, std::initializer_list<unsigned> bits)
{
    std::uint32_t value = flags.word.from_wire();
    for (const unsigned bit : bits) {
        value |= std::uint32_t{1} << bit;
    }
    set(flags.word, value);
}

inline void set_flags(UidbEntry &entry, std::initializer_list<UidbFlag> flags)
{
    for (const UidbFlag flag : flags) {
        entry.flags[flag.byte - offsetof(UidbEntry, flags)] |= flag.mask;
    }
}

/// Records, one behind the other.
class ShowDataBuilder
{
public:
    template <class Record>
    ShowDataBuilder &add(const Record &record)
    {
        return add_bytes(&record, sizeof record);
    }

    ShowDataBuilder &add_zeros(std::size_t size);

    [[nodiscard]] const std::vector<std::uint8_t> &bytes() const { return bytes_; }

private:
    ShowDataBuilder &add_bytes(const void *bytes, std::size_t size);

    std::vector<std::uint8_t> bytes_;
};

} // namespace l2fib
