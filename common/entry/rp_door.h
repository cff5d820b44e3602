// The RP's views of an object, on the output of a call that is under way.
#pragma once

#include "common/entry/view_request.h"
#include "common/output.h"

namespace l2fib
{

std::uint32_t show_detail(Output &out, const ViewRequest &request);
std::uint32_t show_private(Output &out, const ViewRequest &request);
std::uint32_t show_inconsistency(Output &out, const ViewRequest &request);

/// How much show data the view relies on, as far as the show data can tell: where it ends before a count that decides,
/// the end of that count's record. 0 for objects of which the view reads nothing.
std::uint64_t context_end(ViewKind view, const ViewRequest &request);

} // namespace l2fib
