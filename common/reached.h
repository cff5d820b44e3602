// Says which pieces of the show data a view has come to. As common/recording.h, it is empty in the router's library.
#pragma once

#include <cstddef>

namespace l2fib
{

template <class Piece>
void reached(const Piece * /*first*/, std::size_t /*count*/)
{
}

} // namespace l2fib
