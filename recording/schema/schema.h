// The JSON Schema of the lines.
#pragma once

#include "recording/schema/lines.h"

namespace l2fib
{

/// As text, a member on each line.
std::string json_schema(const Lines &lines);

} // namespace l2fib
