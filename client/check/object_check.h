// Checks one object: what the RP and the NPs hold of it must go together.
#pragma once

#include "client/check/fact_check.h"
#include "client/check/np_comparison.h"
#include "client/objects.h"

namespace l2fib
{

/// Whether the NPs hold the same of an object. Of resources and counters, each has its own.
bool has_like_nps(const Object &object);

class ObjectCheck
{
public:
    /// The findings in a view that all show data was there for: what the table of facts has first, then what the NPs
    /// differ in. They are valid until the next check.
    const std::vector<Finding> &check(const Object &object, const CheckedView &view);

private:
    void check_failures(const CheckedView &view);

    FactCheck facts_;
    NpComparison nps_;
    Coverage coverage_;
};

} // namespace l2fib
