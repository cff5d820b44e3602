// What the client says on standard error, and how it exits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace l2fib
{

enum ExitStatus : int {
    shown = 0,
    view_failed = 1, ///< a view reported a failure
    unusable = 2,    ///< wrong usage, unreadable input, or nowhere to write to
};

/// Prints a line with the program's name, fit for a terminal. Returns `unusable`.
ExitStatus complain(std::string_view what);

/// The router's text of a status; never null, though a router may have none.
const char *text_of_status(std::uint32_t status);

/// Says how a view failed. Returns `view_failed`.
ExitStatus report_status(std::uint32_t status, std::string_view place = {});

/// Text from a file, fit for a terminal: short, and with what is not plain text spelled out.
std::string spelled_out(std::string_view text);

/// Some of what another process of this run wrote to standard output did not get there.
void note_lost_output(int error);

/// Whether text is known not to get there, so that there is no use in more of it.
bool is_output_lost();

/// Whether everything written to standard output so far got there; says so when it did not.
bool output_arrived();

} // namespace l2fib
