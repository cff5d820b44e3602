// An input of values.cpp: a few numbers, and bytes for records of any size.
#pragma once

#include "common/record.h"
#include "fuzz/exact_copy.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace l2fib
{

class ValuesInput
{
public:
    /// In host order; what the input is too short for is 0.
    struct Head {
        U8 objtype;
        U8 capacity; ///< of a text
        AsStored<std::uint64_t> nanoseconds;
        StoredU32 number;
        AsStored<std::int16_t> words_length;
    };
    Head head{};

    explicit ValuesInput(std::span<const std::uint8_t> input)
    {
        std::memcpy(&head, input.data(), std::min(input.size(), sizeof head));
        rest_ = input.subspan(std::min(input.size(), sizeof head));
    }

    /// As many bytes, zeros where the input ends.
    [[nodiscard]] ExactCopy bytes(std::size_t size) const
    {
        std::vector<std::uint8_t> bytes(size);
        std::copy_n(rest_.begin(), std::min(size, rest_.size()), bytes.begin());
        return ExactCopy(bytes);
    }

    /// Room for a text, with something in it that is none.
    static ExactCopy filled(std::size_t size) { return ExactCopy(std::vector<std::uint8_t>(size, 0xee)); }

private:
    std::span<const std::uint8_t> rest_;
};

} // namespace l2fib
