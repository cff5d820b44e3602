// Lines of captures, made of what decides how they are read: members of every kind and name, once or twice, at the top
// or below, with and without escapes and blanks, and lines that differ in their digits only.
//
// Random changes of text rarely make another line that is JSON.
#pragma once

#include <cstddef>
#include <cstdint>

namespace l2fib
{

/// Changes an input of lines. The arguments are those of LLVMFuzzerCustomMutator.
std::size_t mutate_lines(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed);

} // namespace l2fib
