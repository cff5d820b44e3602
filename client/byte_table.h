// Show data as a table for people: what each of its bytes is, and where the screen shows it.
#pragma once

#include "recording/bytes_recorder.h"

#include <cstdint>
#include <span>

namespace l2fib
{

/// How much of the show data no line of the screen shows.
struct NotShown {
    void add(const recording::ByteRun &run, std::span<const std::uint8_t> bytes);

    std::size_t count = 0;
    std::size_t nonzero = 0;
};

/// Prints on standard output what a view that has ended made of `bytes`.
void print_byte_table(recording::BytesRecorder &view, std::span<const std::uint8_t> bytes, bool colored);

} // namespace l2fib
