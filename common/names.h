// Tables of names, indexed by the number that the show data carries.
#pragma once

#include <cstddef>
#include <cstdint>

namespace l2fib
{

template <std::size_t size>
constexpr const char *name_of(const char *const (&names)[size], std::uint32_t index, const char *otherwise)
{
    return index < size ? names[index] : otherwise;
}

} // namespace l2fib
