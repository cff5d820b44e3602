// How much show data the RP's views read.
#pragma once

#include "common/show_data.h"

namespace l2fib
{

/// The end of an RP context whose size is fixed.
template <ShowDataPiece Part>
constexpr std::uint64_t end_of(ShowData /*data*/)
{
    return sizeof(Part);
}

} // namespace l2fib
