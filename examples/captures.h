// The sample captures of this directory.
#pragma once

#include "zel_l2fib/show.h"

#include <cstdint>
#include <vector>

namespace l2fib
{

std::vector<std::uint8_t> make_vpls_ac_ingress();
std::vector<std::uint8_t> make_vpls_ac_egress();
std::vector<std::uint8_t> make_local_switch_ac();

struct SampleCapture {
    const char *name; ///< the file is NAME.bin
    std::uint32_t objtype;
    std::uint32_t direction;
    std::vector<std::uint8_t> (*make)();
};

inline constexpr SampleCapture sample_captures[] = {
    {"vpls-ac-ingress", L2FIB_OBJTYPE_AC, L2FIB_INGRESS, make_vpls_ac_ingress},
    {"vpls-ac-egress", L2FIB_OBJTYPE_AC, L2FIB_EGRESS, make_vpls_ac_egress},
    {"local-switch-ac", L2FIB_OBJTYPE_AC, L2FIB_INGRESS, make_local_switch_ac},
};

} // namespace l2fib
