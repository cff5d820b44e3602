#include "common/entry/card.h"

#include "common/recording.h"
#include "zel_l2fib/show.h"

void l2fib::print_unsupported_card(Output &out)
{
    const Failure failure(out);
    out.text("\nUnsupported card type NONE: %d", 0);
}

uint32_t zel_l2fib_get_cardtype(uint32_t node_id)
{
    return l2fib::card_is_supported(node_id) ? l2fib::supported_cards : 0;
}
