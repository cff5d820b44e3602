// Show data whose pieces follow each other, some of them present and some not.
#pragma once

#include "common/show_data.h"

#include <concepts>
#include <tuple>

namespace l2fib
{

/// Hands out one piece after the other. A piece that the show data does not hold whole is not handed out.
class ShowDataCursor
{
public:
    explicit ShowDataCursor(ShowData data) : data_(data) {}

    /// `count` records as one piece.
    template <ShowDataRecord Record>
    std::span<Record> take(std::uint32_t count)
    {
        return claim(count * std::uint64_t{sizeof(Record)}) ? data_.array_at<Record>(begin_, count)
                                                            : std::span<Record>{};
    }

    template <ShowDataRecord Record>
    Record *take()
    {
        return take<Record>(1).data();
    }

    /// Records of several kinds as one piece, one kind behind the other: as many of each as `counts` says.
    template <ShowDataRecord... Records>
    std::tuple<std::span<Records>...> take_together(std::convertible_to<std::uint32_t> auto... counts)
    {
        if (!claim(((std::uint64_t{sizeof(Records)} * static_cast<std::uint32_t>(counts)) + ...))) {
            return {};
        }
        std::uint64_t offset = begin_;
        return {next<Records>(offset, static_cast<std::uint32_t>(counts))...};
    }

    /// Where the last piece ends that was asked for, from the first byte of the show data.
    [[nodiscard]] std::uint64_t end() const { return end_; }

private:
    template <class Record>
    std::span<Record> next(std::uint64_t &offset, std::uint32_t count) const
    {
        const auto records = data_.array_at<Record>(offset, count);
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
    std::uint64_t begin_ = 0; // of the last piece asked for
    std::uint64_t end_ = 0;
};

} // namespace l2fib
