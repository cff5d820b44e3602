// The printer of inconsistency reports: streams of type-length-value records that the producer has composed.
#pragma once

#include "common/output.h"
#include "common/show_data.h"

namespace l2fib
{

/// Prints the records of a stream up to its end. Leaves `rest` at what follows the stream, or at the record that is in
/// error. Statuses: 0, L2FIB_SHOW_ERR_DATA.
std::uint32_t print_report(Output &out, std::uint32_t level, const char *key, ShowData &rest);

} // namespace l2fib
