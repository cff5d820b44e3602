// The RP's views of an object, for a call that has its Output already.
#pragma once

#include "common/entry/view_request.h"
#include "common/output.h"

namespace l2fib
{

std::uint32_t show_detail(Output &out, const ViewRequest &request);
std::uint32_t show_private(Output &out, const ViewRequest &request);
std::uint32_t show_inconsistency(Output &out, const ViewRequest &request);

/// How many bytes of show data the view reads without a check. Where a count decides and the show data ends before it,
/// this is the size of the record with the count. 0 for objects of which the view reads nothing.
std::uint64_t context_end(ViewKind view, const ViewRequest &request);

} // namespace l2fib
