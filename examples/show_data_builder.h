// Composes show data as the producer does, field by field. The type of a field decides its byte order.
#pragma once

#include "common/record.h"
#include "hw/uidb_entry.h"

#include <initializer_list>
#include <vector>

namespace l2fib
{

template <class Integer>
void set(Number<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(byte_swapped(value));
}
template <class Integer>
void set(BigEndian<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(byte_swapped(value));
}
template <class Integer>
void set(AsStored<Integer> &field, std::type_identity_t<Integer> value)
{
    field.bytes = std::bit_cast<decltype(field.bytes)>(value);
}

/// A field of a record in host order: one that an earlier view has converted, or that the line card has stored.
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
    const Word sent = byte_swapped(packed.word());
    const auto others = static_cast<Word>(sent & ~packed.wire_bits(field, static_cast<Word>(~Word{0})));
    set_converted(packed, byte_swapped(static_cast<Word>(others | packed.wire_bits(field, value))));
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
    std::uint32_t sent = byte_swapped(flags.word());
    for (const unsigned bit : bits) {
        sent |= std::uint32_t{1} << bit;
    }
    set_converted(flags, byte_swapped(sent));
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
