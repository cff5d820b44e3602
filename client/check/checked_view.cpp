#include "client/check/checked_view.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace l2fib
{

using recording::FieldInfo;
using recording::FieldKind;
using recording::Pattern;
using recording::pattern_of;
using recording::TreeSection;
using recording::TreeValue;

void KeyIndex::begin(std::size_t keys)
{
    const std::size_t size = std::bit_ceil(2 * keys + 2);
    if (slots_.size() < size) {
        slots_.resize(size);
    }
    mask_ = size - 1;
    std::fill_n(slots_.begin(), size, Slot{0, none});
}

std::size_t KeyIndex::slot_of(std::uint64_t key) const
{
    std::size_t at = static_cast<std::size_t>(key ^ key >> 32U) & mask_;
    while (slots_[at].number != none && slots_[at].key != key) {
        at = (at + 1) & mask_;
    }
    return at;
}

std::uint32_t &KeyIndex::operator[](std::uint64_t key)
{
    Slot &slot = slots_[slot_of(key)];
    slot.key = key;
    return slot.number;
}

std::uint32_t KeyIndex::find(std::uint64_t key) const
{
    return slots_[slot_of(key)].number;
}

void CheckedView::begin(const recording::Tree &tree, std::span<const std::uint8_t> received, std::endian stored_order)
{
    tree_ = &tree;
    received_ = received;
    stored_order_ = stored_order;
    index_patterns();
    find_nps();
    fill_rows();
}

/// A key of a value within its section.
static std::uint64_t key_in_section(std::uint32_t section, Pattern pattern)
{
    return (pattern ^ section) * 0x9e3779b97f4a7c15;
}

void CheckedView::index_patterns()
{
    const auto values = tree_->values();
    by_pattern_.begin(values.size());
    by_section_.begin(values.size());
    next_.assign(values.size(), KeyIndex::none);
    last_.resize(values.size());
    for (std::uint32_t i = 0; i < values.size(); ++i) {
        std::uint32_t &first = by_pattern_[values[i].pattern];
        if (first == KeyIndex::none) {
            first = i;
        } else {
            next_[last_[first]] = i;
        }
        last_[first] = i;
        std::uint32_t &in_section = by_section_[key_in_section(values[i].section, values[i].pattern)];
        in_section = in_section == KeyIndex::none ? i : in_section;
    }
}

/// Members are at the NPs that they are at: those of one are not like those of another.
static bool is_compared(const TreeSection &section)
{
    return std::strcmp(section.key, "members") != 0;
}

void CheckedView::find_nps()
{
    constexpr Pattern nps = pattern_of("hw.nps[]");
    const auto sections = tree_->sections();
    np_sections_.clear();
    np_of_section_.assign(sections.size(), KeyIndex::none);
    place_in_np_.assign(sections.size(), 0);
    for (std::uint32_t i = 1; i < sections.size(); ++i) {
        const TreeSection &section = sections[i];
        if (section.pattern == nps) {
            np_of_section_[i] = static_cast<std::uint32_t>(np_sections_.size());
            np_sections_.push_back(i);
            place_in_np_[i] = section.pattern;
        } else if (np_of_section_[section.parent] != KeyIndex::none && is_compared(section)) {
            np_of_section_[i] = np_of_section_[section.parent];
            place_in_np_[i] = (place_in_np_[section.parent] * 31 + section.index) ^ section.pattern;
        }
    }
}

std::uint64_t CheckedView::row_key(const TreeValue &value) const
{
    return place_in_np_[value.section] * 0x9e3779b97f4a7c15 ^ value.pattern;
}

void CheckedView::fill_rows()
{
    const auto values = tree_->values();
    rows_.clear();
    cells_.clear();
    row_index_.begin(nps() < 2 ? 0 : values.size());
    if (nps() < 2) {
        return;
    }
    std::uint32_t expected = 0; // the NPs show nearly the same, in the same order
    for (const TreeValue &value : values) {
        const std::uint32_t np = np_of_section_[value.section];
        if (np == KeyIndex::none) {
            continue;
        }
        const std::uint64_t key = row_key(value);
        if (expected >= rows_.size() || rows_[expected].key != key) {
            std::uint32_t &row = row_index_[key];
            if (row == KeyIndex::none) {
                row = static_cast<std::uint32_t>(rows_.size());
                rows_.push_back({key, &value});
                cells_.resize(rows_.size() * nps(), nullptr);
            }
            expected = row;
        }
        const TreeValue *&cell = cells_[expected * nps() + np];
        cell = cell == nullptr ? &value : cell;
        ++expected;
    }
}

const TreeValue *CheckedView::first(Pattern pattern) const
{
    const std::uint32_t found = by_pattern_.find(pattern);
    return found == KeyIndex::none ? nullptr : &tree_->values()[found];
}

const TreeValue *CheckedView::in_section(std::uint32_t section, std::string_view key) const
{
    const Pattern pattern = pattern_of(key, pattern_of(".", tree_->sections()[section].pattern));
    const std::uint32_t found = by_section_.find(key_in_section(section, pattern));
    return found == KeyIndex::none ? nullptr : &tree_->values()[found];
}

/// A field of a record by its name, "features.more" for one of a record within it.
static const FieldInfo *field_named(const recording::RecordInfo &record, std::string_view name, std::size_t &offset)
{
    const std::size_t dot = std::min(name.find('.'), name.size());
    for (const FieldInfo &field : record.fields) {
        if (field.name == name.substr(0, dot)) {
            offset += field.offset;
            return dot == name.size() || field.record == nullptr
                       ? &field
                       : field_named(*field.record, name.substr(dot + 1), offset);
        }
    }
    return nullptr;
}

std::optional<Held> CheckedView::field(Pattern section, std::string_view name) const
{
    const recording::RecordInfo *last = nullptr;
    for (const TreeValue &value : tree_->values()) {
        if (tree_->sections()[value.section].pattern != section || !value.place || value.place->record == nullptr ||
            value.place->record == last) {
            continue;
        }
        last = value.place->record;
        std::size_t offset = value.place->record_offset();
        const FieldInfo *found = field_named(*last, name, offset);
        if (found != nullptr && offset + found->size <= received_.size()) {
            return Held{number_at(offset, found->size, found->kind), offset, found->size};
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> CheckedView::offset_of(std::size_t row, std::size_t np) const
{
    if (const TreeValue *shown = cell(row, np)) {
        return shown->place ? std::optional(shown->place->offset) : std::nullopt;
    }
    const TreeValue &like = first_of_row(row);
    if (!like.place || like.place->record == nullptr) {
        return std::nullopt;
    }
    // Another value that comes from the NP's own such record.
    const std::uint64_t section = place_in_np_[like.section];
    for (std::size_t other = 0; other < rows(); ++other) {
        const TreeValue *neighbour = cell(other, np);
        if (neighbour != nullptr && place_in_np_[neighbour->section] == section && neighbour->place &&
            neighbour->place->record == like.place->record) {
            return neighbour->place->record_offset() + (like.place->offset - like.place->record_offset());
        }
    }
    return std::nullopt;
}

std::string CheckedView::path_in_np(const TreeValue &value, std::size_t np) const
{
    const std::string own = tree_->path_of(np_sections_[np_of_section_[value.section]]);
    return tree_->path_of(np_sections_[np]) + tree_->path_of(value).substr(own.size());
}

std::optional<std::size_t> CheckedView::row_of(const TreeValue &value) const
{
    if (nps() < 2 || np_of_section_[value.section] == KeyIndex::none) {
        return std::nullopt;
    }
    const std::uint32_t row = row_index_.find(row_key(value));
    return row == KeyIndex::none ? std::nullopt : std::optional<std::size_t>(row);
}

std::uint64_t CheckedView::number_at(std::size_t offset, std::size_t width, FieldKind kind) const
{
    const bool is_little_endian = kind == FieldKind::stored && stored_order_ == std::endian::little;
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(width, sizeof number); ++i) {
        number = number << 8U | received_[offset + (is_little_endian ? width - 1 - i : i)];
    }
    return number;
}

} // namespace l2fib
