// The detail view of each RP context, which converts it first.
#pragma once

#include "common/list.h"
#include "rp/context_end.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

struct DetailView {
    std::uint64_t (*context_end)(ShowData data); ///< how much show data it reads
    void (*print)(Output &out, std::uint32_t direction, std::uint8_t *show_data);
};

extern const DetailView ac_detail;
extern const DetailView pw_detail;
extern const DetailView bridge_detail;
extern const DetailView bridge_port_detail;
extern const DetailView bridge_mac_detail;

/// Prints the word before an object's first item. No comma follows it.
inline void print_direction(List &line, std::uint32_t direction)
{
    line.text("%s ", direction == L2FIB_INGRESS ? "Ingress" : "Egress");
}

} // namespace l2fib
