// In the place of common/reached.h, for the recording build.
#pragma once

#include "recording/record_info.h"

namespace l2fib
{

template <class Piece>
void reached(const Piece *first, std::size_t count)
{
    if (recording::current != nullptr) {
        recording::current->reached(info_of<std::remove_const_t<Piece>>(), first, sizeof(Piece), count);
    }
}

} // namespace l2fib
