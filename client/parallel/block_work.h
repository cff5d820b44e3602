// What processes do with the blocks of the input.
#pragma once

#include "client/parallel/block.h"
#include "client/parallel/line_counter.h"
#include "client/parallel/parcel.h"

#include <cstddef>

namespace l2fib
{

/// A process does some of the blocks. Another one is told what they come to, in the order of all blocks.
class BlockWork
{
public:
    BlockWork() = default;
    virtual ~BlockWork() = default;
    BlockWork(const BlockWork &) = delete;
    BlockWork &operator=(const BlockWork &) = delete;

    /// Does a block, and counts its lines: what it prints is on standard output or waits for `flush`. Returns how many
    /// lines it has.
    virtual std::size_t run(const Block &block, LineCounter &counter) = 0;
    virtual void flush() = 0;

    /// What was done since the last time, beside what is printed.
    virtual void hand_over(Parcel &parcel) = 0;

    /// Adds what another process has done.
    virtual void take_over(OpenedParcel &parcel) = 0;

    /// What goes between the texts of two blocks.
    [[nodiscard]] virtual const char *separator() const { return ""; }

    /// Whether text has been printed.
    [[nodiscard]] virtual bool has_text() const { return false; }
};

} // namespace l2fib
