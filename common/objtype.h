// The printed names of the object types.
#pragma once

#include "common/literal.h"

#include <cstdint>

namespace l2fib
{

/// The name of an object type, "Invalid" for an unknown code.
Literal objtype_name(std::uint32_t objtype);

} // namespace l2fib
