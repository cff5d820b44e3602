// Records of the show data: their fields, and the conversion from the producer's byte order to the host's.
//
// A record is a struct of the types of common/number.h and common/packed.h, and lists its fields in their order:
//
//     struct ObjectCounts {
//         U32 created;
//         U32 bound; // 4
//
//         using Fields = l2fib::Fields<&ObjectCounts::created, &ObjectCounts::bound>;
//     };
//
// Show data holds it as a Received<ObjectCounts>, which gives no access to its fields until it is converted.
// The view that finds the record there converts it, once. What prints it gets a const ObjectCounts &.
#pragma once

#include "common/packed.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>
#include <type_traits>

namespace l2fib
{

/// All fields of a record, in their order.
template <auto... members>
struct Fields {
};

template <class Record>
concept RecordWithFields = requires
{
    typename Record::Fields;
};

template <class Record>
class Received;

namespace record_fields // what the compiler checks about a list of fields
{

template <class Member>
struct Of;
template <class InRecord, class FieldType>
struct Of<FieldType InRecord::*> {
    using Record = InRecord;
    using Type = FieldType;
};
template <auto member>
using Type = typename Of<decltype(member)>::Type;
template <auto member>
using Record = typename Of<decltype(member)>::Record;

/// Whether the list has every field of the record, and none twice.
template <class InRecord, auto... members>
consteval bool are_complete(Fields<members...> /*list*/)
{
    const InRecord record{};
    const void *const places[] = {&(record.*members)...};
    for (const void *const &place : places) {
        if (std::find(std::begin(places), &place, place) != &place) {
            return false;
        }
    }
    return (sizeof(Type<members>) + ...) == sizeof(InRecord);
}

/// Whether a type may be read in show data as it was received: its numbers know their byte order, or it hides them
/// until they are converted. So may a record of such fields.
template <class FieldType>
struct IsReadableAsReceived : std::false_type {
};
template <class Integer>
struct IsReadableAsReceived<BigEndian<Integer>> : std::true_type {
};
template <class Integer>
struct IsReadableAsReceived<AsStored<Integer>> : std::true_type {
};
template <std::size_t size>
struct IsReadableAsReceived<Bytes<size>> : std::true_type {
};
template <class InRecord>
struct IsReadableAsReceived<Received<InRecord>> : std::true_type {
};
template <class FieldType, std::size_t size>
struct IsReadableAsReceived<FieldType[size]> : IsReadableAsReceived<FieldType> {
};

template <auto... members>
consteval bool all_are_readable(Fields<members...> /*list*/)
{
    return (IsReadableAsReceived<Type<members>>::value && ...);
}
template <RecordWithFields InRecord>
struct IsReadableAsReceived<InRecord> : std::bool_constant<all_are_readable(typename InRecord::Fields{})> {
    static_assert(are_complete<InRecord>(typename InRecord::Fields{}), "a record lists each of its fields");
};

} // namespace record_fields

/// The name of a field, as its record has it: the compiler puts it at the end of this function's own name.
template <auto member>
consteval std::string_view field_name()
{
    std::string_view name = __PRETTY_FUNCTION__;
    name.remove_prefix(name.find("member = "));
    name = name.substr(0, name.find_first_of(";]"));
    return name.substr(name.rfind(':') + 1);
}

/// Converts neighbouring numbers of 16 bits in place, four at a time. A bridge has 272 of them. One by one, they add
/// 56% to the instructions of its private view.
template <std::size_t count>
void convert_halves(U16 (&numbers)[count])
{
    if constexpr (host_is_big_endian) {
        return;
    }
    constexpr std::uint64_t low_bytes = 0x00ff00ff00ff00ff;
    constexpr std::size_t in_fours = count - count % 4;
    for (std::size_t i = 0; i < in_fours; i += 4) {
        std::uint64_t four = 0;
        std::memcpy(&four, &numbers[i], sizeof four);
        four = (four & low_bytes) << 8U | (four >> 8U & low_bytes);
        std::memcpy(&numbers[i], &four, sizeof four);
    }
    for (std::size_t i = in_fours; i < count; ++i) {
        numbers[i].bytes = std::bit_cast<Bytes<2>>(byte_swapped(numbers[i].value()));
    }
}

template <class InRecord, auto... members>
void convert_fields(InRecord &record, Fields<members...> list);

/// Converts a field in place; of a record or an array, everything in it. Only Numbers and packed words change.
template <class FieldType>
void convert_field(FieldType &field)
{
    if constexpr (record_fields::IsReadableAsReceived<FieldType>::value) {
        return;
    } else if constexpr (RecordWithFields<FieldType>) {
        convert_fields(field, typename FieldType::Fields{});
    } else if constexpr (requires { convert_halves(field); }) {
        convert_halves(field);
    } else if constexpr (std::is_array_v<FieldType>) {
        for (auto &element : field) {
            convert_field(element);
        }
    } else if constexpr (requires { field.to_host(); }) {
        field.to_host();
    } else {
        field.bytes = std::bit_cast<decltype(field.bytes)>(from_big_endian(field.value()));
    }
}

template <class InRecord, auto... members>
void convert_fields(InRecord &record, Fields<members...> /*list*/)
{
    (convert_field(record.*members), ...);
}

/// A record as its producer sent it. Its fields can be read after it has been converted, in place or in a copy
/// (common/working_copies.h).
template <class Record>
class Received
{
    static_assert(RecordWithFields<Record> && alignof(Record) == 1);
    static_assert(record_fields::are_complete<Record>(typename Record::Fields{}), "a record lists each of its fields");

public:
    /// Converts the record in the caller's buffer. For each record, this may be called once.
    const Record &to_host()
    {
        convert_fields(record_, typename Record::Fields{});
        return record_;
    }

    /// Converts one field of it, for a view that may need no other.
    template <auto member>
    auto to_host_only()
    {
        convert_field(record_.*member);
        return (record_.*member).value();
    }

    /// The value of a field, in host order. The record stays as it is.
    template <auto member>
    [[nodiscard]] auto peek() const
    {
        auto field = record_.*member;
        convert_field(field);
        return field.value();
    }

    /// The record, when an earlier view has converted it.
    [[nodiscard]] const Record &converted_before() const { return record_; }

    /// The fields in the producer's byte order: for programs that compose show data.
    [[nodiscard]] Record &to_compose() { return record_; }

private:
    Record record_;
};

/// A record that the line card's own software has stored, in the byte order of its processor.
template <RecordWithFields Record>
class StoredRecord
{
public:
    [[nodiscard]] const Record &value() const { return record_; }
    [[nodiscard]] Record &to_compose() { return record_; }

private:
    Record record_;
};

namespace record_fields
{
template <class InRecord>
struct IsReadableAsReceived<StoredRecord<InRecord>> : std::true_type {
};
} // namespace record_fields

} // namespace l2fib
