#include "hw/bport_entry.h"

#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable bport_flags{{{31, "Active Member"}, {24, "IRL Bport"}}};

void zel_l2fib_print_bport_entry(Output &out, std::uint32_t level, BportKey *key, BportEntry *entry)
{
    if (entry == nullptr) {
        return;
    }
    to_host(key->bridge_id, key->port_id, entry->flags, entry->xid);

    out.line(level, "Bridge Port%s Bridge %d Port %d ", key->is_virtual != 0 ? " Virt: " : "     : ", key->bridge_id,
             key->port_id);
    print_flags(out, level + 1, "Flags", bport_flags, entry->flags);
    List forwarding{out, level + 1};
    forwarding.item("XID: 0x%08x", entry->xid);
}

} // namespace l2fib
