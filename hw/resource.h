// The use of the hardware tables of the forwarding ASIC, object type RSRC_MON.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "common/stored.h"
#include "hw/mac_scan.h"
#include "hw/np.h"

#include <cstddef>

namespace l2fib
{

constexpr unsigned resource_operations = 6;
constexpr unsigned resource_types = 13;
constexpr unsigned resource_static_mac = 2; ///< the type whose maximum holds for all MACs

/// Requests of one kind to program a table.
struct ResourceOperation {
    U32 t_count; // as the heading "T/F" has them
    U32 f_count; //  4
    U64 time;    //  8  nanoseconds spent

    void to_host() { l2fib::to_host(t_count, f_count, time); }
};

/// One type of resource on one NP.
struct ResourceUse {
    ResourceOperation operations[resource_operations];
    U32 in_use;  //  96
    U32 maximum; // 100
    Bytes<8> unread_104;

    void to_host() { l2fib::to_host(operations, in_use, maximum); }
};
static_assert(sizeof(ResourceUse) == 112 && offsetof(ResourceUse, in_use) == 96);

/// The slots of all NPs are carried, whether or not the card has as many. The number of MACs (U32) follows for each NP
/// that it has.
struct ResourceData {
    U32 np_count;
    struct Use {
        ResourceUse nps[max_nps];
    } types[resource_types];    //     4
    MacScan mac_scans[max_nps]; // 11652
};
static_assert(sizeof(ResourceData) == 13252 && offsetof(ResourceData, mac_scans) == 11652);

/// An RSRC_MON object; the resource data follows.
struct ResourceShowData {
    U32 length; // of the resource data; stays big-endian
    U32 unread_4;
};

/// Prints the resource data that `data` begins with; `length` is what its producer says of its size. Statuses: 0,
/// L2FIB_SHOW_ERR_ARGS for null data, L2FIB_SHOW_ERR_DATA.
std::uint32_t zel_l2fib_trident_print_resource(Output &out, std::uint32_t level, ShowData data, std::uint64_t length);

} // namespace l2fib
