// What has been told of an object already.
#pragma once

#include "client/check/findings.h"

#include <algorithm>
#include <set>
#include <vector>

namespace l2fib
{

/// The findings in an object, and what of the NPs' rows has been looked at. Nothing is reported twice.
class Coverage
{
public:
    void begin(std::size_t rows)
    {
        rows_.assign(rows, false);
        bits_.clear();
        offsets_.clear();
        findings_.clear();
    }

    void cover_row(std::size_t row) { rows_[row] = true; }
    [[nodiscard]] bool has_row(std::size_t row) const { return rows_[row]; }

    /// Of a word of flags; 0 is the first byte's highest bit.
    void cover_bit(std::size_t row, int bit) { bits_.push_back({row, bit}); }
    [[nodiscard]] bool has_bit(std::size_t row, int bit) const
    {
        return std::any_of(bits_.begin(), bits_.end(),
                           [&](const Bit &covered) { return covered.row == row && covered.bit == bit; });
    }

    /// Adds a finding, unless something that is odd in it has been reported. Of a word of flags, each is a fact of its
    /// own.
    void add(Finding finding, bool is_of_bits = false);

    [[nodiscard]] const std::vector<Finding> &findings() const { return findings_; }

private:
    struct Bit {
        std::size_t row;
        int bit;
    };
    std::vector<bool> rows_;
    std::vector<Bit> bits_;
    std::set<std::size_t> offsets_; ///< of what was odd
    std::vector<Finding> findings_;
};

} // namespace l2fib
