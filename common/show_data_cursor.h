// Show data whose pieces follow each other, some of them present and some not.
#pragma once

#include "common/show_data.h"

#include <utility>

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

    /// Records of two kinds as one piece, the one behind the other.
    template <ShowDataRecord First, ShowDataRecord Second>
    std::pair<std::span<First>, std::span<Second>> take(std::uint32_t first_count, std::uint32_t second_count)
    {
        const std::uint64_t first_size = first_count * std::uint64_t{sizeof(First)};
        if (!claim(first_size + second_count * std::uint64_t{sizeof(Second)})) {
            return {};
        }
        return {data_.array_at<First>(begin_, first_count), data_.array_at<Second>(begin_ + first_size, second_count)};
    }

    /// Where the last piece ends that was asked for, from the first byte of the show data.
    [[nodiscard]] std::uint64_t end() const { return end_; }

private:
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
