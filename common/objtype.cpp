#include "common/objtype.h"

#include "common/names.h"
#include "zel_l2fib/show.h"

#include <iterator>

namespace l2fib
{

static constexpr Literal objtype_names[] = {
    "NONE",
    "ALL",
    "AC",
    "MPLS",
    "PBB PORT",
    "VNI",
    "NHOP",
    "RSRC_MON",
    "L2TP",
    "L2TP_SESSION",
    "VFI",
    "BRIDGE",
    "BRIDGE SHG",
    "BRIDGE PORT",
    "BRIDGE MAC",
    "MSTI MAIN PORT",
    "BRIDGE MAIN PORT",
    "MCAST TABLE",
    "MCAST LEAF",
    "MCAST XID",
    "PBB BMAC SA",
    "DHCP",
    "MCAST XID LIST",
    "SPAN",
    "G8032 RING",
    "G8032 RING INST",
    "GLOBAL",
    "EVPN MCAST LEAF",
    "EVPN MCAST OLE",
    "PWHE MP",
    "P2MP PTREE",
    "P2MP PTREE LABEL",
    "PWGROUP",
    "EVPN",
    "EVPN SHG",
    "EVPN IPv4/MAC",
    "EVPN IPv6/MAC",
    "COLLABORATOR",
    "L2RIB CACHE",
    "OBJECT_MAX",
};
static_assert(std::size(objtype_names) == L2FIB_OBJTYPE_MAX + 1);

Literal objtype_name(std::uint32_t objtype)
{
    return name_of(objtype_names, objtype, "Invalid");
}

} // namespace l2fib
