// Tables of names, indexed by the number that the show data carries.
#pragma once

#include "common/literal.h"
#include "common/recording.h"

#include <cstddef>
#include <cstdint>

namespace l2fib
{

/// The name of a number, or of a field's number.
template <std::size_t size, class Index>
constexpr auto name_of(const Literal (&names)[size], const Index &index, const Literal &otherwise)
{
    return made_from(index, [&](std::uint32_t number) { return number < size ? names[number] : otherwise; });
}

} // namespace l2fib
