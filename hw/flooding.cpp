#include "hw/flooding.h"

#include "common/list.h"

namespace l2fib
{

void print_flooding(Output &out, std::uint32_t level, const BridgePortContext &port)
{
    List line{out, level};
    line.item("slot mask[R0]: 0x%x", port.slot_mask[0]);
    line.item("slot mask[R1]: 0x%x", port.slot_mask[1]);
    line.item("NP flood mask: 0x%04x", port.np_flood_mask);
}

} // namespace l2fib
