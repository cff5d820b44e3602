// Composes show data as the producer does, field by field. The type of a field decides its byte order.
#pragma once

#include "common/record.h"
#include "hw/uidb_entry.h"

#include <initializer_list>
#include <vector>

namespace l2fib
{

/// How the line card stores its own numbers. Without the client, the library is to read them: it takes them for its
/// own.
inline std::endian stored_order = std::endian::native;

template <class Integer>
void set(Number<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(from_big_endian(value));
}
template <class Integer>
void set(BigEndian<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(from_big_endian(value));
}
template <class Integer>
void set(AsStored<Integer> &field, std::type_identity_t<Integer> value)
{
    const bool is_here = stored_order == std::endian::native;
    field.bytes = std::bit_cast<decltype(field.bytes)>(is_here ? value : byte_swapped(value));
}

/// A field of a record that the line card has stored.
template <class Integer>
void set_stored(Number<Integer> &field, std::type_identity_t<Integer> value)
{
    AsStored<Integer> stored{};
    set(stored, value);
    field.bytes = stored.bytes;
}

/// The number in the last 24 bits of a word that the line card has stored as two bit-fields.
inline void set_stored(FlagWord<wide(8), wide(24)> &packed, std::uint32_t number)
{
    StoredU32 stored{};
    set(stored, stored_order == std::endian::little ? number << 8U : number);
    packed.bytes = stored.bytes;
}

/// A field of a record that an earlier view has converted.
template <class Integer>
void set_converted(Number<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(value);
}
template <class Word, FieldRun... runs>
void set_converted(Packed<Word, runs...> &packed, std::type_identity_t<Word> word)
{
    packed.bytes = std::bit_cast<decltype(packed.bytes)>(word);
}

/// One field of a packed word.
template <class Word, FieldRun... runs>
void set_field(Packed<Word, runs...> &packed, unsigned field, std::type_identity_t<Word> value)
{
    const Word sent = from_big_endian(packed.word());
    const auto others = static_cast<Word>(sent & ~packed.wire_bits(field, static_cast<Word>(~Word{0})));
    set_converted(packed, from_big_endian(static_cast<Word>(others | packed.wire_bits(field, value))));
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
    std::uint32_t sent = from_big_endian(flags.word());
    for (const unsigned bit : bits) {
        sent |= std::uint32_t{1} << bit;
    }
    set_converted(flags, from_big_endian(sent));
}

inline void set_flags(UidbEntry &entry, std::initializer_list<UidbFlag> flags)
{
    for (const UidbFlag flag : flags) {
        entry.flags[flag.byte - offsetof(UidbEntry, flags)] |= flag.mask;
    }
}

/// A record as it is inside another one.
template <class Record>
Received<Record> as_sent(const Record &record)
{
    Received<Record> sent{};
    sent.to_compose() = record;
    return sent;
}

/// Records, one after the other.
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
