// Tables of names, indexed by the number that the show data carries.
#pragma once

#include "common/literal.h"

#include <cstddef>
#include <cstdint>

namespace l2fib
{

template <std::size_t size>
constexpr Literal name_of(const Literal (&names)[size], std::uint32_t index, const Literal &otherwise)
{
    return index < size ? names[index] : otherwise;
}

} // namespace l2fib
