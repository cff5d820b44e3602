// Checks the facts of the table.
#pragma once

#include "client/check/coverage.h"
#include "client/check/facts.h"
#include "client/check/statements.h"

namespace l2fib
{

class FactCheck
{
public:
    void begin(const CheckedView &view, Coverage &coverage) { view_ = &view, coverage_ = &coverage; }

    void check(const Fact &fact);

private:
    [[nodiscard]] bool applies(const Fact &fact) const;
    void collect(const FactPlace &place);
    void collect_shown(const FactPlace &place, const recording::TreeValue &value);
    void collect_hidden(const FactPlace &place);
    void collect_nps_that_hide(const recording::TreeValue &shown);
    void say(const Fact &fact, std::span<const Said> said);
    void check_each_np(const Fact &fact);
    void check_at_most(const Fact &fact);
    void check_zero(const Fact &fact);
    void add(const Fact &fact, Finding finding);

    const CheckedView *view_ = nullptr;
    Coverage *coverage_ = nullptr;
    std::vector<Said> said_;
};

} // namespace l2fib
