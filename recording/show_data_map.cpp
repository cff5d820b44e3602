#include "recording/show_data_map.h"

#include <algorithm>
#include <functional>

namespace recording
{

std::string Place::name() const
{
    std::string name(field->name);
    if (field->is_array) {
        name += '_' + std::to_string(index);
    }
    return name;
}

void ShowDataMap::begin(std::span<const std::uint8_t> show_data)
{
    show_data_ = show_data;
    runs_.clear();
    end_of_runs_ = 0;
    copies_.clear();
    last_run_ = 0;
    last_copy_ = 0;
}

std::optional<std::size_t> ShowDataMap::offset_of(const void *address) const
{
    const auto *byte = static_cast<const std::uint8_t *>(address);
    const auto is_in = [byte](const std::uint8_t *begin, std::size_t size) {
        return std::greater_equal<>{}(byte, begin) && std::less<>{}(byte, begin + size);
    };
    if (is_in(show_data_.data(), show_data_.size())) {
        return static_cast<std::size_t>(byte - show_data_.data());
    }
    // Most often it is the copy that the last address was in.
    const auto has = [&](const Copy &copy) { return is_in(copy.begin, copy.size); };
    if (last_copy_ >= copies_.size() || !has(copies_[last_copy_])) {
        const auto found = std::find_if(copies_.rbegin(), copies_.rend(), has);
        if (found == copies_.rend()) {
            return std::nullopt;
        }
        last_copy_ = static_cast<std::size_t>(copies_.rend() - found) - 1;
    }
    const Copy &copy = copies_[last_copy_];
    return copy.offset + static_cast<std::size_t>(byte - copy.begin);
}

void ShowDataMap::reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count)
{
    constexpr std::size_t first_kept = 16;
    constexpr std::size_t last_kept = 48;
    constexpr std::size_t many = 1024;
    const auto offset = offset_of(first);
    if (!offset || type == nullptr || count == 0) {
        return;
    }
    if (runs_.size() >= many && !keeps_all_) {
        runs_.erase(runs_.begin() + first_kept, runs_.end() - last_kept);
    }
    runs_.push_back({*offset, size, count, type});
    end_of_runs_ = std::max(end_of_runs_, *offset + size * count);
    last_run_ = runs_.size() - 1;
}

void ShowDataMap::copied(const void *to, const void *from, std::size_t size)
{
    const auto offset = offset_of(from);
    if (!offset) {
        return;
    }
    // Memory is used again: what was copied there before is gone.
    const auto *begin = static_cast<const std::uint8_t *>(to);
    std::erase_if(copies_, [&](const Copy &copy) {
        return std::less<>{}(copy.begin, begin + size) && std::less<>{}(begin, copy.begin + copy.size);
    });
    copies_.push_back({begin, size, *offset});
    last_copy_ = copies_.size() - 1;
}

const ShowDataMap::Run *ShowDataMap::run_at(std::size_t offset) const
{
    if (offset >= end_of_runs_) {
        return nullptr; // as for each value of a report: a million of them would not look through a million runs each
    }
    // Most often it is the one that the last offset was in, unless another one has come since.
    const auto has = [offset](const Run &run) {
        return offset >= run.offset && offset - run.offset < run.size * run.count;
    };
    if (last_run_ >= runs_.size() || !has(runs_[last_run_])) {
        const auto found = std::find_if(runs_.rbegin(), runs_.rend(), has);
        if (found == runs_.rend()) {
            return nullptr;
        }
        last_run_ = static_cast<std::size_t>(runs_.rend() - found) - 1;
    }
    return &runs_[last_run_];
}

static const FieldInfo &field_at(const RecordInfo &type, std::size_t offset)
{
    if (!type.field_at.empty()) {
        return type.fields[type.field_at[offset]];
    }
    const auto after = std::upper_bound(type.fields.begin(), type.fields.end(), offset,
                                        [](std::size_t at, const FieldInfo &field) { return at < field.offset; });
    return *std::prev(after);
}

/// The field of a record at an offset of its own.
static Place place_in(const RecordInfo &type, std::size_t offset)
{
    const FieldInfo &field = field_at(type, offset);
    const std::size_t within = offset - field.offset;
    const std::size_t index = within < field.size ? 0 : within / field.size; // divisions take their time
    if (field.record != nullptr) {
        return place_in(*field.record, within - index * field.size);
    }
    return {0, &field, index, &type};
}

std::optional<Place> ShowDataMap::place_of(const void *address) const
{
    const auto offset = offset_of(address);
    if (!offset) {
        return std::nullopt;
    }
    const Run *run = run_at(*offset);
    Place place;
    if (run != nullptr) {
        const std::size_t within = *offset - run->offset;
        place = place_in(*run->type, within < run->size ? within : within % run->size);
    }
    place.offset = *offset;
    return place;
}

} // namespace recording
