// Whose turn it is to write, among processes that stand in a ring.
#pragma once

#include "client/progress.h"

namespace l2fib
{

/// What the one who writes has to know of what was written before.
struct Turn {
    bool has_text;
    bool is_in_line; ///< on the screen
    int lost_output; ///< the error by which text did not arrive; 0 when all has
    ProgressState progress;
};

/// The place of a process in the ring: between one that has its turn before and one that has it after.
struct RingPlace {
    int before;
    int after;

    /// False when the other one is gone.
    bool wait(Turn &turn) const;
    void pass(const Turn &turn) const;
};

} // namespace l2fib
