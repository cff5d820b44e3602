// What goes round among processes that stand in a ring: for each block the number of its first line, and then whose
// turn it is to write.
#pragma once

#include "client/progress.h"

#include <cstddef>
#include <optional>

namespace l2fib
{

/// What the one who writes has to know of what was written before.
struct Turn {
    bool has_text;
    bool is_in_line; ///< on the screen
    int lost_output; ///< the error by which text did not arrive; 0 when all has
    ProgressState progress;
};

/// The place of a process in the ring: between one that has its turn before and one that has it after. Who waits for
/// one that is gone ends, as what it would write has no place any more.
class RingPlace
{
public:
    /// Takes the sockets of its neighbours, which stay the caller's.
    RingPlace(int before, int after) : before_(before), after_(after) {}

    /// What comes from the one before, waiting if need be.
    [[nodiscard]] std::size_t line();
    [[nodiscard]] Turn turn();

    /// For each block, both go to the one after, in this order.
    void pass_line(std::size_t line) const;
    void pass_turn(const Turn &turn);

private:
    int before_;
    int after_;
    std::optional<std::size_t> line_; ///< until the turn is passed
};

} // namespace l2fib
