// Where the numbers of an input lie that decide what becomes of the rest.
//
// Random changes rarely meet them, and so rarely get past the first check. A mutator that knows them does, and still
// makes every other input.
#pragma once

#include "common/show_data.h"
#include "fuzz/call.h"

#include <vector>

namespace l2fib
{

class Shape
{
public:
    /// The shape of an input as far as it has one yet: fields are only of what lies inside it.
    explicit Shape(std::span<const std::uint8_t> input) : input_(input) {}

    /// Numbers that a field decides by; none for a field of flags.
    using Values = std::span<const std::uint64_t>;

    struct Field {
        std::size_t offset;
        std::size_t width;
        bool is_wire; ///< big-endian
        Values values;
    };

    template <class Record>
    struct Placed {
        std::size_t offset;
        Record record; ///< zeros for one that the input ends in
    };

    /// The record after the last one.
    template <ShowDataPiece Record>
    Placed<Record> add()
    {
        Placed<Record> placed{whole_size(), {}};
        if (const auto *found = at<Record>(placed.offset)) {
            placed.record = *found;
        }
        skip(sizeof(Record));
        return placed;
    }

    /// Bytes after the last record that are of no interest.
    void skip(std::size_t size) { ends_.push_back(whole_size() + size); }

    template <class Number>
    void wire(std::size_t offset, Values values)
    {
        add_field({offset, sizeof(Number), true, values});
    }
    template <class Number>
    void host(std::size_t offset, Values values)
    {
        add_field({offset, sizeof(Number), false, values});
    }

    [[nodiscard]] const std::vector<Field> &fields() const { return fields_; }

    /// The sizes at which a record ends.
    [[nodiscard]] const std::vector<std::size_t> &ends() const { return ends_; }
    [[nodiscard]] std::size_t whole_size() const { return ends_.back(); }

private:
    template <ShowDataPiece Record>
    [[nodiscard]] const Record *at(std::size_t offset) const
    {
        return offset <= input_.size() && sizeof(Record) <= input_.size() - offset
                   ? &ShowData::unchecked<const Record>(input_.data() + offset)
                   : nullptr;
    }
    void add_field(const Field &field)
    {
        if (field.offset + field.width <= input_.size()) {
            fields_.push_back(field);
        }
    }

    std::span<const std::uint8_t> input_;
    std::vector<Field> fields_;
    std::vector<std::size_t> ends_ = {0};
};

/// The shape of a call and what it passes to the function that a target names by number.
using ShapeOf = Shape (*)(std::span<const std::uint8_t> input);

/// Changes an input by its shape, or at random. The arguments are those of LLVMFuzzerCustomMutator.
std::size_t mutate(ShapeOf shape_of, std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed);

/// A call that shows an object, of which the Call's objtype, direction and view decide the rest.
Shape shape_of_object(std::span<const std::uint8_t> input);

/// A call of a function of summaries.cpp.
Shape shape_of_summary(std::span<const std::uint8_t> input);

/// A call with a stream of type-length-value records.
Shape shape_of_tlv(std::span<const std::uint8_t> input);

} // namespace l2fib
