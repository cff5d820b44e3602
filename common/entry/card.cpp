#include "common/entry/card.h"

#include "common/recording.h"
#include "platform/platform.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

bool card_is_supported(std::uint32_t node_id)
{
    return zel_l2fib_get_cardtype(node_id) == supported_cards;
}

bool check_card(Output &out, std::uint32_t node_id)
{
    if (card_is_supported(node_id)) {
        return true;
    }
    const Failure failure(out);
    out.text("\nUnsupported card type NONE: %d", 0);
    return false;
}

} // namespace l2fib

uint32_t zel_l2fib_get_cardtype(uint32_t node_id)
{
    const std::uint32_t code = node_card_type(node_id);
    return (code >= 0x1e1000 && code <= 0x1e1003) || code == 0x1e1005 ? l2fib::supported_cards : 0;
}
