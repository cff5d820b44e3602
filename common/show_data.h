// Checked access to show data. A record is reached through here or not at all.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

namespace l2fib
{

template <class Record>
concept ShowDataRecord = alignof(Record) == 1 && std::is_trivially_copyable_v<Record>;

/// The caller's buffer, or the part of it that begins at some offset.
class ShowData
{
public:
    ShowData() = default;
    ShowData(std::uint8_t *bytes, std::uint64_t size) : begin_(bytes), size_(bytes == nullptr ? 0 : size) {}

    [[nodiscard]] bool is_null() const { return begin_ == nullptr; }
    [[nodiscard]] std::uint8_t *bytes() const { return begin_; }
    [[nodiscard]] std::uint64_t size() const { return size_; }

    [[nodiscard]] bool holds(std::uint64_t offset, std::uint64_t bytes) const
    {
        return offset <= size_ && bytes <= size_ - offset;
    }

    /// The record at an offset, or null unless all of it lies inside the show data.
    template <ShowDataRecord Record>
    [[nodiscard]] Record *at(std::uint64_t offset) const
    {
        return !is_null() && holds(offset, sizeof(Record)) ? &promised<Record>(begin_ + offset) : nullptr;
    }

    /// The records from an offset on, none unless all of them lie inside the show data.
    template <ShowDataRecord Record>
    [[nodiscard]] std::span<Record> array_at(std::uint64_t offset, std::uint32_t count) const
    {
        auto *first = holds(offset, std::uint64_t{count} * sizeof(Record)) ? at<Record>(offset) : nullptr;
        return first == nullptr ? std::span<Record>{} : std::span<Record>{first, count};
    }

    /// What lies behind an offset; null show data where nothing does.
    [[nodiscard]] ShowData from(std::uint64_t offset) const
    {
        return !is_null() && holds(offset, 0) ? ShowData{begin_ + offset, size_ - offset} : ShowData{};
    }

    /// The first bytes, all of them where there are fewer.
    [[nodiscard]] ShowData first(std::uint64_t size) const { return {begin_, std::min(size, size_)}; }

    /// The string at an offset, or null unless it ends inside the show data.
    [[nodiscard]] const char *string_at(std::uint64_t offset) const
    {
        const ShowData text = from(offset);
        return text.size() != 0 && std::memchr(text.begin_, '\0', text.size()) != nullptr
                   ? reinterpret_cast<const char *>(text.begin_)
                   : nullptr;
    }

    /// A record that a caller of the library vouches for, of a buffer whose size nobody compares.
    template <ShowDataRecord Record, class Byte>
    [[nodiscard]] static Record &promised(Byte *bytes, std::uint64_t offset = 0)
    {
        return *reinterpret_cast<Record *>(bytes + offset);
    }

    /// Records that a caller of the library vouches for.
    template <ShowDataRecord Record>
    [[nodiscard]] static std::span<Record> promised_array(std::uint8_t *bytes, std::uint64_t offset,
                                                          std::uint32_t count)
    {
        return {&promised<Record>(bytes, offset), count};
    }

private:
    std::uint8_t *begin_ = nullptr;
    std::uint64_t size_ = 0;
};

} // namespace l2fib
