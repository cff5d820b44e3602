// A recorded view, as checks look at it: its values by their paths, and those of the NPs side by side.
#pragma once

#include "recording/tree.h"

#include <bit>
#include <span>
#include <string>
#include <vector>

namespace l2fib
{

/// Finds numbers by keys that are well spread.
class KeyIndex
{
public:
    static constexpr std::uint32_t none = 0xffffffff;

    /// Forgets all; there will be up to so many keys.
    void begin(std::size_t keys);

    /// The number of a key, to be read or set; none at first.
    std::uint32_t &operator[](std::uint64_t key);
    [[nodiscard]] std::uint32_t find(std::uint64_t key) const;

private:
    struct Slot {
        std::uint64_t key;
        std::uint32_t number;
    };
    [[nodiscard]] std::size_t slot_of(std::uint64_t key) const;

    std::vector<Slot> slots_;
    std::size_t mask_ = 0;
};

/// A number that the show data holds.
struct Held {
    std::uint64_t number;
    std::size_t offset;
    std::size_t width;
};

class CheckedView
{
public:
    /// Looks at what a tree has taken down of show data that was received so.
    void begin(const recording::Tree &tree, std::span<const std::uint8_t> received, std::endian stored_order);

    [[nodiscard]] const recording::Tree &tree() const { return *tree_; }
    [[nodiscard]] std::span<const std::uint8_t> received() const { return received_; }

    /// Calls with each value of a pattern, in the order of the screen.
    template <class Use>
    void for_each(recording::Pattern pattern, const Use &use) const
    {
        for (std::uint32_t i = by_pattern_.find(pattern); i != KeyIndex::none; i = next_[i]) {
            use(tree_->values()[i]);
        }
    }

    /// The first value of a pattern; null when there is none.
    [[nodiscard]] const recording::TreeValue *first(recording::Pattern pattern) const;

    /// The value of a key in a section; null when there is none.
    [[nodiscard]] const recording::TreeValue *in_section(std::uint32_t section, std::string_view key) const;

    /// A field by its name, of a record that values of a section come from: also one that no line shows.
    [[nodiscard]] std::optional<Held> field(recording::Pattern section, std::string_view name) const;

    // The NPs of "hw.nps", and one row for each value that any of them has.

    [[nodiscard]] std::size_t nps() const { return np_sections_.size(); }
    [[nodiscard]] std::size_t rows() const { return rows_.size(); }

    [[nodiscard]] std::uint32_t np_section(std::size_t np) const { return np_sections_[np]; }

    /// The path that a value of an NP has in another NP.
    [[nodiscard]] std::string path_in_np(const recording::TreeValue &value, std::size_t np) const;

    /// Whether two rows are of the same section of the NPs.
    [[nodiscard]] bool are_of_a_section(std::size_t row, std::size_t other) const
    {
        return place_in_np_[rows_[row].first->section] == place_in_np_[rows_[other].first->section];
    }

    /// The value of a row as an NP has it; null when it shows none.
    [[nodiscard]] const recording::TreeValue *cell(std::size_t row, std::size_t np) const
    {
        return cells_[row * nps() + np];
    }
    [[nodiscard]] const recording::TreeValue &first_of_row(std::size_t row) const { return *rows_[row].first; }

    /// The bytes of a row's field where an NP has them, shown or not; none where it has no such record.
    [[nodiscard]] std::optional<std::size_t> offset_of(std::size_t row, std::size_t np) const;

    /// The row that a value is in; none for what belongs to no NP.
    [[nodiscard]] std::optional<std::size_t> row_of(const recording::TreeValue &value) const;

    /// A number as it lies in the show data.
    [[nodiscard]] std::uint64_t number_at(std::size_t offset, std::size_t width, recording::FieldKind kind) const;

private:
    struct Row {
        std::uint64_t key;
        const recording::TreeValue *first;
    };

    void index_patterns();
    void find_nps();
    void fill_rows();
    [[nodiscard]] std::uint64_t row_key(const recording::TreeValue &value) const;

    const recording::Tree *tree_ = nullptr;
    std::span<const std::uint8_t> received_;
    std::endian stored_order_ = std::endian::little;
    KeyIndex by_pattern_;
    KeyIndex by_section_;             ///< and pattern
    std::vector<std::uint32_t> next_; ///< value of the same pattern
    std::vector<std::uint32_t> last_;

    std::vector<std::uint32_t> np_sections_;
    std::vector<std::uint32_t> np_of_section_; ///< none outside of all NPs
    std::vector<std::uint64_t> place_in_np_;   ///< of each section, as a key
    std::vector<Row> rows_;
    std::vector<const recording::TreeValue *> cells_;
    KeyIndex row_index_;
};

} // namespace l2fib
