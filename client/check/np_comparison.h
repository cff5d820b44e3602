// Compares what the NPs of an object hold, field by field.
#pragma once

#include "client/check/coverage.h"
#include "client/check/facts.h"
#include "client/check/statements.h"

namespace l2fib
{

class NpComparison
{
public:
    void begin(const CheckedView &view, Coverage &coverage) { view_ = &view, coverage_ = &coverage; }

    /// Reports the fields that no fact is about and that are not the same on all NPs.
    void compare();

private:
    void compare_row(std::size_t row);
    void compare_word(std::size_t row);
    [[nodiscard]] bool differs(std::size_t row) const;
    void say_values(std::size_t row, Finding told);
    void say_flags(std::size_t row, std::span<const std::uint8_t> mask, Finding told);
    [[nodiscard]] std::string flags_of(std::size_t row, std::size_t np, std::span<const std::uint8_t> mask) const;

    const CheckedView *view_ = nullptr;
    Coverage *coverage_ = nullptr;
    std::vector<std::size_t> decided_; ///< rows of fields that decide what the rest of their section is
};

} // namespace l2fib
