// Failures: each function prints the message of one and returns its status.
#pragma once

#include "common/output.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// The router's text of a status. Never null, even where the router's is.
const char *status_text(std::uint32_t status);

/// Show data of `size` bytes where at least `needed` are.
std::uint32_t short_data(Output &out, std::uint32_t level, std::uint64_t size, std::uint64_t needed);

/// A hardware handler that was called without show data.
std::uint32_t null_arguments(Output &out, std::uint32_t level, const Literal &function);

/// An RP view that was called without show data.
std::uint32_t null_show_data(Output &out, const Literal &function, std::uint32_t objtype);

/// A summary that was called without show data.
std::uint32_t null_summary(Output &out, const Literal &function);

/// A summary whose show data ends early.
std::uint32_t wrong_summary_size(Output &out, const Literal &function, std::uint64_t size);

/// An object that a view does not show. Prints on the current line. Not a failure: the status is 0.
std::uint32_t wrong_objtype(Output &out, const Literal &function, std::uint32_t objtype);

} // namespace l2fib
