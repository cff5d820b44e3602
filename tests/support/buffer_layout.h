// What lies where in show data: the fields of its records by their names.
#pragma once

#include "common/record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace l2fib
{

/// A field, or an element of one that is an array.
struct BufferField {
    std::string name; ///< such as "np.xid.flags" or "np.bports[1].key.port_id"
    std::size_t offset;
    std::size_t width;
    bool is_stored; ///< in the byte order of the line card
};

template <class Field>
inline constexpr bool is_stored_number = false;
template <class Integer>
inline constexpr bool is_stored_number<AsStored<Integer>> = true;

/// Fields by their names, a byte of one as in "uidb.flags+3", and what they hold. The later counts.
using Values = std::vector<std::pair<std::string, std::uint64_t>>;

inline Values operator+(Values one, const Values &other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

/// Records, one after the other.
class BufferLayout
{
public:
    template <class Record>
    void add(const char *name)
    {
        add_field<Record>(name, size_, false);
        size_ += sizeof(Record);
    }

    [[nodiscard]] const std::vector<BufferField> &fields() const { return fields_; }

    [[nodiscard]] BufferField field(const std::string &name) const;

    /// Show data whose fields hold these values, and 0 elsewhere, or another byte everywhere.
    [[nodiscard]] std::vector<std::uint8_t> filled_with(const Values &values, std::uint8_t elsewhere = 0) const;

    /// The same with numbers elsewhere that read differently from their other end.
    [[nodiscard]] std::vector<std::uint8_t> numbers_with(const Values &values) const;

private:
    template <class Record>
    struct Inside { // of a record that hides its fields
        using Type = Record;
        static constexpr bool is_stored = is_stored_number<Record>;
    };
    template <class Record>
    struct Inside<Received<Record>> : Inside<Record> {
    };
    template <class Record>
    struct Inside<StoredRecord<Record>> {
        using Type = Record;
        static constexpr bool is_stored = true;
    };

    template <class Field>
    void add_field(const std::string &name, std::size_t offset, bool is_in_stored)
    {
        using Type = typename Inside<Field>::Type;
        const bool is_stored = is_in_stored || Inside<Field>::is_stored;
        if constexpr (std::is_array_v<Type>) {
            using One = std::remove_extent_t<Type>;
            for (std::size_t i = 0; i < std::extent_v<Type>; ++i) {
                add_field<One>(name + "[" + std::to_string(i) + "]", offset + i * sizeof(One), is_stored);
            }
        } else if constexpr (RecordWithFields<Type>) {
            add_fields(name + ".", offset, is_stored, typename Type::Fields{});
        } else {
            fields_.push_back({name, offset, sizeof(Type), is_stored});
        }
    }

    template <auto... members>
    void add_fields(const std::string &prefix, std::size_t offset, bool is_stored, Fields<members...> /*list*/)
    {
        (add_field<record_fields::Type<members>>(prefix + std::string(field_name<members>()),
                                                 offset + offset_of<members>(), is_stored),
         ...);
    }

    template <auto member>
    static std::size_t offset_of()
    {
        static const record_fields::Record<member> record{};
        return static_cast<std::size_t>(reinterpret_cast<const char *>(&(record.*member)) -
                                        reinterpret_cast<const char *>(&record));
    }

    void set(std::vector<std::uint8_t> &bytes, const Values &values) const;

    std::vector<BufferField> fields_;
    std::size_t size_ = 0;
};

template <class... Records, class... Names>
BufferLayout layout_of(const Names &...names)
{
    BufferLayout layout;
    (layout.add<Records>(names), ...);
    return layout;
}

} // namespace l2fib
