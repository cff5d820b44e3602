// The router that a capture came from, as far as the library asks for it.
#pragma once

#include <cstdint>

namespace l2fib
{

/// The card-type code of every node.
void set_card_type(std::uint32_t code);

} // namespace l2fib
