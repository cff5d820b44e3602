// The JSON Schema of the lines that --json prints.
#pragma once

#include <string_view>

namespace l2fib
{

std::string_view published_schema();

} // namespace l2fib
