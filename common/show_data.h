// Checked access to show data. A record is reached through here or not at all.
#pragma once

#include "common/reached.h"
#include "common/record.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>

namespace l2fib
{

/// What may be taken out of show data: types whose numbers know their byte order. A record that needs conversion is
/// taken out as a Received record.
template <class Piece>
concept ShowDataPiece =
    alignof(Piece) == 1 &&
    std::is_trivially_copyable_v<Piece> &&record_fields::IsReadableAsReceived<std::remove_const_t<Piece>>::value;

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

    /// The piece at an offset, or null unless all of it lies inside the show data.
    template <ShowDataPiece Piece>
    [[nodiscard]] Piece *at(std::uint64_t offset) const
    {
        return array_at<Piece>(offset, 1).data();
    }

    /// The pieces from an offset on, none unless all of them lie inside the show data.
    template <ShowDataPiece Piece>
    [[nodiscard]] std::span<Piece> array_at(std::uint64_t offset, std::uint32_t count) const
    {
        if (is_null() || !holds(offset, std::uint64_t{count} * sizeof(Piece))) {
            return {};
        }
        return unchecked_array<Piece>(begin_, offset, count);
    }

    /// The show data from an offset on; null show data where it does not reach that far.
    [[nodiscard]] ShowData from(std::uint64_t offset) const
    {
        return !is_null() && holds(offset, 0) ? ShowData{begin_ + offset, size_ - offset} : ShowData{};
    }

    /// The first bytes, all of them where there are fewer.
    [[nodiscard]] ShowData first(std::uint64_t size) const { return {begin_, std::min(size, size_)}; }

    /// The string at an offset, none unless it ends inside the show data.
    [[nodiscard]] std::optional<std::string_view> string_at(std::uint64_t offset) const
    {
        const ShowData text = from(offset);
        const void *end =
            text.size() == 0 ? nullptr : std::memchr(text.begin_, '\0', static_cast<std::size_t>(text.size()));
        if (end == nullptr) {
            return std::nullopt;
        }
        const auto *begin = reinterpret_cast<const char *>(text.begin_);
        return std::string_view(begin, static_cast<std::size_t>(static_cast<const char *>(end) - begin));
    }

    /// The piece at an offset, without a check: the caller of the library has promised it.
    template <ShowDataPiece Piece, class Byte>
    [[nodiscard]] static Piece &unchecked(Byte *bytes, std::uint64_t offset = 0)
    {
        return unchecked_array<Piece>(bytes, offset, 1).front();
    }

    /// The pieces from an offset on, without a check, likewise.
    template <ShowDataPiece Piece, class Byte>
    [[nodiscard]] static std::span<Piece> unchecked_array(Byte *bytes, std::uint64_t offset, std::uint32_t count)
    {
        auto *first = reinterpret_cast<Piece *>(bytes + offset);
        reached(first, count);
        return {first, count};
    }

private:
    std::uint8_t *begin_ = nullptr;
    std::uint64_t size_ = 0;
};

} // namespace l2fib
