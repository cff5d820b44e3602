// Which cards are supported.
#pragma once

#include "common/output.h"
#include "platform/platform.h"

namespace l2fib
{

/// The row of zel_l2fib_hal_print for the supported family of cards.
constexpr std::uint32_t supported_cards = 1;

constexpr bool is_of_supported_family(std::uint32_t card_type)
{
    return (card_type >= 0x1e1000 && card_type <= 0x1e1003) || card_type == 0x1e1005;
}

/// Whether the card of a node is of the supported family. Each call asks the router once.
inline bool card_is_supported(std::uint32_t node_id)
{
    return is_of_supported_family(node_card_type(node_id));
}

void print_unsupported_card(Output &out);

/// The same, with a message on the screen when it is not.
inline bool check_card(Output &out, std::uint32_t node_id)
{
    const bool is_supported = card_is_supported(node_id);
    if (!is_supported) {
        print_unsupported_card(out);
    }
    return is_supported;
}

} // namespace l2fib
