// Which cards are supported.
#pragma once

#include "common/output.h"

namespace l2fib
{

/// The row of zel_l2fib_hal_print for the supported family of cards.
constexpr std::uint32_t supported_cards = 1;

/// Whether the card of a node is of the supported family. Each call asks the router once.
bool card_is_supported(std::uint32_t node_id);

/// The same, with a message on the screen when it is not.
bool check_card(Output &out, std::uint32_t node_id);

} // namespace l2fib
