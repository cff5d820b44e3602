// How much show data the RP's views rely on.
#pragma once

#include "common/show_data.h"

namespace l2fib
{

/// Where the RP context that the private or the detail view reads of an object ends, as far as `data` can tell: where
/// it ends before a count that decides, the end of that count's record. 0 for objects that the view does not read.
std::uint64_t context_end(bool private_view, std::uint32_t objtype, ShowData data);

} // namespace l2fib
