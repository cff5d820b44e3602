#include "recording/stored_numbers.h"

#include <algorithm>
#include <functional>

namespace recording
{

const std::vector<StoredNumberTurner::Number> &StoredNumberTurner::stored_numbers_of(const RecordInfo &type)
{
    const auto known = stored_numbers_.find(&type);
    if (known != stored_numbers_.end()) {
        return known->second;
    }
    std::vector<Number> stored;
    for (const FieldInfo &field : type.fields) {
        std::vector<Number> inside;
        if (field.record != nullptr) {
            inside = stored_numbers_of(*field.record);
        }
        std::size_t begin = 0;
        for (const std::size_t size : field.stored) {
            inside.push_back({begin, size});
            begin += size;
        }
        for (std::size_t i = 0; i < field.count && !inside.empty(); ++i) {
            for (const Number &number : inside) {
                stored.push_back({field.offset + i * field.size + number.offset, number.size});
            }
        }
    }
    return stored_numbers_[&type] = std::move(stored);
}

void StoredNumberTurner::turn(std::size_t offset, std::size_t size)
{
    if (offset + size > copy_.size() || is_turned_[offset]) {
        return;
    }
    is_turned_[offset] = true;
    for (const std::span<std::uint8_t> bytes : {copy_, show_data_}) {
        const auto number = bytes.subspan(offset, size);
        std::reverse(number.begin(), number.end());
    }
}

void StoredNumberTurner::reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count)
{
    const auto *byte = static_cast<const std::uint8_t *>(first);
    if (type == nullptr || std::less<>{}(byte, copy_.data()) || !std::less<>{}(byte, copy_.data() + copy_.size())) {
        return;
    }
    const std::vector<Number> &stored = stored_numbers_of(*type);
    auto offset = static_cast<std::size_t>(byte - copy_.data());
    for (std::size_t i = 0; i < count && offset < copy_.size() && !stored.empty(); ++i, offset += size) {
        for (const Number &number : stored) {
            turn(offset + number.offset, number.size);
        }
    }
}

} // namespace recording
