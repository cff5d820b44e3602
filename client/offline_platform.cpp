#include "client/offline_platform.h"

#include "platform/platform.h"

static std::uint32_t card_type = 0x1e1000;

void l2fib::set_card_type(std::uint32_t code)
{
    card_type = code;
}

// The other operations stay with the platform library.
uint32_t node_card_type(uint32_t /*node_id*/)
{
    return card_type;
}
