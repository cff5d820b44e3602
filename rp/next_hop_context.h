// The RP's context of a next hop.
#pragma once

#include "common/record.h"
#include "rp/path.h"

#include <cstddef>

namespace l2fib
{

/// Entries of IgpPath follow, num_paths of them.
struct NextHopContext {
    Bytes<4> unread_0;
    U32 unread_4[2];
    Bytes<52> unread_12;
    U32 l2vpn_ldi_index; //    64
    U8 recursion_level;  //    68
    U8 unread_69;
    U16 num_paths; //    70
    Bytes<22784> unread_72;
    U16 unread_22856;
    Bytes<2946> unread_22858;
    U32 unread_25804;
    U16 unread_25808[2];
    FlagWord<one_bit(2), wide(6)> unread_25812;
    U8 ecd_version; // 25816
    U8 ecd_type;    // 25817
    Bytes<2> unread_25818;
    U32 feci_comp_id;    // 25820
    U32 ecd_data_length; // 25824
    Bytes<52> unread_25828;

    using R = NextHopContext;
    using Fields = l2fib::Fields<&R::unread_0, &R::unread_4, &R::unread_12, &R::l2vpn_ldi_index, &R::recursion_level,
                                 &R::unread_69, &R::num_paths, &R::unread_72, &R::unread_22856, &R::unread_22858,
                                 &R::unread_25804, &R::unread_25808, &R::unread_25812, &R::ecd_version, &R::ecd_type,
                                 &R::unread_25818, &R::feci_comp_id, &R::ecd_data_length, &R::unread_25828>;
};
static_assert(sizeof(NextHopContext) == 25880 && offsetof(NextHopContext, ecd_data_length) == 25824);

struct IgpPath {
    PathState state;
    PathDescriptor unread_4[2];
    PathDescriptor primary; // 20
    PathDescriptor backup;  // 28

    using R = IgpPath;
    using Fields = l2fib::Fields<&R::state, &R::unread_4, &R::primary, &R::backup>;
};
static_assert(sizeof(IgpPath) == 36);

} // namespace l2fib
