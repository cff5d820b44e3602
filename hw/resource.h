// The use of the hardware tables of the forwarding ASIC, object type RSRC_MON.
#pragma once

#include "common/record.h"
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

    using R = ResourceOperation;
    using Fields = l2fib::Fields<&R::t_count, &R::f_count, &R::time>;
};

/// One type of resource on one NP.
struct ResourceUse {
    ResourceOperation operations[resource_operations];
    U32 in_use;  //  96
    U32 maximum; // 100
    Bytes<8> unread_104;

    using R = ResourceUse;
    using Fields = l2fib::Fields<&R::operations, &R::in_use, &R::maximum, &R::unread_104>;
};
static_assert(sizeof(ResourceUse) == 112 && offsetof(ResourceUse, in_use) == 96);

/// There are slots for eight NPs, even when the card has fewer. The number of MACs (BigU32) follows for each NP that it
/// has.
struct ResourceData {
    BigU32 np_count;
    Received<ResourceUse> uses[resource_types][max_nps]; //     4
    Received<MacScan> mac_scans[max_nps];                // 11652

    using R = ResourceData;
    using Fields = l2fib::Fields<&R::np_count, &R::uses, &R::mac_scans>;
};
static_assert(sizeof(ResourceData) == 13252 && offsetof(ResourceData, mac_scans) == 11652);

/// An RSRC_MON object; the resource data follows.
struct ResourceShowData {
    BigU32 length; // of the resource data
    Bytes<4> unread_4;

    using R = ResourceShowData;
    using Fields = l2fib::Fields<&R::length, &R::unread_4>;
};

} // namespace l2fib
