// `l2fib-show page`: the captures of files as one page of HTML, with what a check finds in them.
#pragma once

#include "client/capture_files.h"

namespace l2fib
{

struct PageOptions {
    std::vector<std::string> files; ///< standard input when there are none
    Selection selection;
};

/// Writes the page on standard output. Exit status as of `check`.
ExitStatus write_page(const PageOptions &options);

} // namespace l2fib
