// Reads show data whose records follow each other, not all of which need be there.
#pragma once

#include "common/show_data.h"

#include <concepts>
#include <tuple>

namespace l2fib
{

/// Hands out one record after the other, none of which reaches past the end of the show data.
class ShowDataCursor
{
public:
    explicit ShowDataCursor(ShowData data) : data_(data) {}

    /// The next `count` records. All of them or none.
    template <ShowDataPiece Piece>
    std::span<Piece> take(std::uint32_t count)
    {
        return claim(count * std::uint64_t{sizeof(Piece)}) ? data_.array_at<Piece>(begin_, count) : std::span<Piece>{};
    }

    template <ShowDataPiece Piece>
    Piece *take()
    {
        return take<Piece>(1).data();
    }

    /// Records of several kinds, one kind after the other, as many of each as `counts` says. All of them or none.
    template <ShowDataPiece... Pieces>
    std::tuple<std::span<Pieces>...> take_together(std::convertible_to<std::uint32_t> auto... counts)
    {
        if (!claim(((std::uint64_t{sizeof(Pieces)} * static_cast<std::uint32_t>(counts)) + ...))) {
            return {};
        }
        std::uint64_t offset = begin_;
        return {next<Pieces>(offset, static_cast<std::uint32_t>(counts))...};
    }

    /// How much show data the last request needed, from the first byte on.
    [[nodiscard]] std::uint64_t end() const { return end_; }

private:
    template <class Piece>
    std::span<Piece> next(std::uint64_t &offset, std::uint32_t count) const
    {
        const auto records = data_.array_at<Piece>(offset, count);
        offset += records.size_bytes();
        return records;
    }

    bool claim(std::uint64_t size)
    {
        const bool is_held = data_.holds(next_, size);
        begin_ = next_;
        end_ = begin_ + size;
        next_ = is_held ? end_ : begin_;
        return is_held;
    }

    ShowData data_;
    std::uint64_t next_ = 0;
    std::uint64_t begin_ = 0; // of the last request
    std::uint64_t end_ = 0;
};

} // namespace l2fib
