// Checks that are more than a comparison of two values.
#pragma once

#include "client/check/checked_view.h"
#include "client/check/coverage.h"

#include <span>

namespace l2fib
{

struct HardwareCheck {
    const char *object; ///< by the name of its command; null for every object
    const char *name;
    const char *rule; ///< what must hold, for the list of rules
    Level level;
    void (*check)(const CheckedView &view, const HardwareCheck &check, Coverage &coverage);
    const char *meaning; ///< for traffic, when it does not hold
};

std::span<const HardwareCheck> hardware_checks();

} // namespace l2fib
