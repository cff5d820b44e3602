// The RP's views of an object, for a call that has its Output already.
#pragma once

#include "common/entry/view_request.h"
#include "common/output.h"

namespace l2fib
{

/// How many bytes of show data the view reads without a check. Where a count decides and the show data ends before it,
/// this is the size of the record with the count. 0 for objects of which the view reads nothing.
std::uint64_t context_end(ViewKind view, const ViewRequest &request);

/// The private view, or the detail view for all other kinds. Refuses show data that ends inside the RP context: the
/// views do not check that, their callers promise it.
std::uint32_t show_whole_context(Output &out, ViewKind view, const ViewRequest &request);

/// The RP's report on an object, then the hardware's.
std::uint32_t show_inconsistency(Output &out, const ViewRequest &request);

} // namespace l2fib
