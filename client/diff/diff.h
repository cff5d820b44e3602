// `l2fib-show diff`: what has changed between two files of captures.
#pragma once

#include "client/capture_files.h"

namespace l2fib
{

struct DiffOptions {
    std::string before;
    std::string after;
    Selection selection;
    bool json = false;
    bool all = false; ///< also what changes by itself: counters, pointers and times
};

/// Exit status as of diff: 0 alike, 1 not, 2 some could not be compared.
ExitStatus diff(const DiffOptions &options);

} // namespace l2fib
