// How much show data the RP's views rely on.
#pragma once

#include "common/show_data.h"

namespace l2fib
{

/// Where an RP context ends that is always of the same size.
template <ShowDataPiece Part>
constexpr std::uint64_t end_of(ShowData /*data*/)
{
    return sizeof(Part);
}

} // namespace l2fib
