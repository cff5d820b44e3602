#include "hw/bport_entry.h"

#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable bport_flags{{{31, "Active Member"}, {24, "IRL Bport"}}};

void print_bport(Output &out, std::uint32_t level, const Bport &bport)
{
    const bool is_virtual = bport.key.is_virtual != 0;
    note(out, "is_virtual", from_field(is_virtual, bport.key.is_virtual));
    out.line(level, "Bridge Port%s Bridge %d Port %d ", is_virtual ? " Virt: " : "     : ", bport.key.bridge_id,
             bport.key.port_id);
    print_flags(out, level + 1, "Flags", bport_flags, bport.entry.flags);
    List forwarding{out, level + 1};
    forwarding.item("XID: 0x%08x", bport.entry.xid);
}

} // namespace l2fib
