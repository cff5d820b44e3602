// The fields of a record by name, offset and kind, from the list that the record has of them.
#pragma once

#include "common/record.h"
#include "recording/recorder.h"

namespace l2fib
{

template <class Piece, bool is_stored = false>
struct PieceInfo;

namespace record_fields
{

using recording::FieldInfo;
using recording::FieldKind;

template <class FieldType>
struct KindOf {
    static constexpr FieldKind kind = RecordWithFields<FieldType> ? FieldKind::record : requires(FieldType f)
    {
        f.wire_bits(0U, f.word());
    }
    ? FieldKind::packed : FieldKind::bytes;
};
template <class Integer>
struct KindOf<Number<Integer>> {
    static constexpr FieldKind kind = FieldKind::number;
};
template <class Integer>
struct KindOf<BigEndian<Integer>> {
    static constexpr FieldKind kind = FieldKind::number;
};
template <class Integer>
struct KindOf<AsStored<Integer>> {
    static constexpr FieldKind kind = FieldKind::stored;
};
template <class Record>
struct KindOf<Received<Record>> {
    static constexpr FieldKind kind = FieldKind::record;
};
template <class Record>
struct KindOf<StoredRecord<Record>> {
    static constexpr FieldKind kind = FieldKind::record;
};

/// The numbers of a stored record are stored, whatever their type says of records that are sent.
constexpr FieldKind kind_in_record(FieldKind kind, bool is_stored)
{
    return is_stored && kind == FieldKind::number ? FieldKind::stored : kind;
}

/// The sizes of the numbers in a field that is stored: its own, or those of the bit-fields of a packed word.
template <class FieldType>
struct StoredNumbers {
    static constexpr std::array<std::uint8_t, 1> sizes{sizeof(FieldType)};
};
template <class Word, FieldRun... runs>
struct StoredNumbers<Packed<Word, runs...>> {
    static_assert(((runs.count == 1 && runs.width % 8 == 0) && ...), "stored bit-fields are whole bytes");
    static constexpr std::array<std::uint8_t, sizeof...(runs)> sizes{runs.width / 8 ...};
};

template <class FieldType, bool is_stored>
constexpr std::span<const std::uint8_t> stored_numbers_of()
{
    constexpr FieldKind kind = kind_in_record(KindOf<FieldType>::kind, is_stored);
    if constexpr (kind == FieldKind::stored || (is_stored && kind == FieldKind::packed)) {
        return StoredNumbers<FieldType>::sizes;
    } else {
        return {};
    }
}

template <class FieldType, bool is_stored = false>
constexpr const recording::RecordInfo *record_of()
{
    if constexpr (KindOf<FieldType>::kind == FieldKind::record) {
        return &PieceInfo<FieldType, is_stored>::info;
    } else {
        return nullptr;
    }
}

template <class FieldType, bool is_stored>
constexpr FieldInfo field_info(std::string_view name, std::size_t &offset)
{
    using One = std::remove_all_extents_t<FieldType>;
    const std::size_t at = offset;
    offset += sizeof(FieldType);
    return {name,
            at,
            sizeof(One),
            sizeof(FieldType) / sizeof(One),
            std::is_array_v<FieldType>,
            kind_in_record(KindOf<One>::kind, is_stored),
            record_of<One, is_stored>(),
            stored_numbers_of<One, is_stored>()};
}

template <class List, bool is_stored>
struct Table;
template <auto... members, bool is_stored>
struct Table<Fields<members...>, is_stored> {
    static constexpr auto make()
    {
        std::size_t offset = 0;
        return std::array{field_info<Type<members>, is_stored>(field_name<members>(), offset)...};
    }
    static constexpr std::array<FieldInfo, sizeof...(members)> fields = make();

    static constexpr std::size_t size = (sizeof(Type<members>) + ...);
    static constexpr std::size_t longest_table = 4096;
    static_assert(sizeof...(members) <= 256);

    static constexpr auto field_at = [] {
        std::array<std::uint8_t, (size <= longest_table ? size : 0)> table{};
        std::uint8_t index = 0;
        for (const FieldInfo &field : fields) {
            for (std::size_t at = field.offset; at < std::min(field.offset + field.size * field.count, table.size());
                 ++at) {
                table[at] = index;
            }
            ++index;
        }
        return table;
    }();
};

template <class Record>
consteval std::string_view record_name()
{
    std::string_view name = __PRETTY_FUNCTION__;
    name.remove_prefix(name.find("Record = ") + 9);
    name = name.substr(0, name.find_first_of(";]"));
    name = name.substr(0, name.find('<')); // of a template, compilers write the arguments differently
    return name.substr(name.rfind(':') + 1);
}

} // namespace record_fields

/// Of what lies in show data: a record, received, stored or readable as it is; nothing of single numbers.
template <class Piece, bool is_stored>
struct PieceInfo {
    static constexpr recording::RecordInfo info{record_fields::record_name<Piece>(), sizeof(Piece),
                                                record_fields::Table<typename Piece::Fields, is_stored>::fields,
                                                record_fields::Table<typename Piece::Fields, is_stored>::field_at};
};
template <class Record>
struct PieceInfo<Received<Record>> : PieceInfo<Record> {
};
template <class Record, bool is_stored>
struct PieceInfo<StoredRecord<Record>, is_stored> : PieceInfo<Record, true> {
};

template <class Piece>
constexpr const recording::RecordInfo *info_of()
{
    return record_fields::record_of<Piece>();
}

} // namespace l2fib
