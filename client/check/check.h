// `l2fib-show check`: where the NPs of objects disagree, with each other or with the RP.
#pragma once

#include "client/capture_files.h"

namespace l2fib
{

struct CheckOptions {
    std::vector<std::string> files; ///< standard input when there are none
    Selection selection;
    bool json = false;
    bool all = false; ///< also what most often rightly differs
    bool list_rules = false;
    unsigned jobs = 1;
};

/// Exit status as of diff: 0 all agree, 1 some do not, 2 some could not be checked.
ExitStatus check(const CheckOptions &options);

} // namespace l2fib
