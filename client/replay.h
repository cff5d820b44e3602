// Shows the captures of files, one after the other.
#pragma once

#include "client/capture_files.h"
#include "client/rendering.h"

#include <string>
#include <vector>

namespace l2fib
{

struct ReplayOptions {
    std::vector<std::string> files; ///< standard input when there are none
    Selection selection;
    bool count = false; ///< a table of what there is, in place of the text
    Rendering rendering;
    bool heading = false; ///< a line in front of each object
    unsigned jobs = 1;
};

ExitStatus replay(const ReplayOptions &options);

} // namespace l2fib
