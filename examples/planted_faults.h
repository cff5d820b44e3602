// The samples with a fault in each, one for every rule of `l2fib-show check`.
#pragma once

#include "client/capture.h"

#include <span>
#include <string>

namespace l2fib
{

/// A change of a field that a view shows.
struct Edit {
    static constexpr int whole = -1;

    const char *path; ///< of the value in the JSON of the view; null when there is nothing to change
    std::uint64_t number = 0;
    int bit = whole; ///< to turn over instead, of the bytes as received; 0 is the highest
    int shift = 0;   ///< from the value to a field next to it that no line shows, in bytes
};

constexpr std::size_t most_edits = 4;

struct PlantedFault {
    const char *sample; ///< that it is planted in
    const char *what;   ///< of the finding; null for one that is found across objects
    const char *who;
    Edit edits[most_edits]; ///< one after the other
};

std::span<const PlantedFault> planted_faults();

/// What is found across them, by the findings' names, in their order.
std::span<const char *const> planted_across();

/// The sample with its edits.
Capture planted(const PlantedFault &fault);

/// The lines of examples/faults/planted.jsonl: a capture for each fault.
std::string planted_lines();

} // namespace l2fib
