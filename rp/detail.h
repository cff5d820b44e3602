// The detail view of each RP context, which converts it first.
#pragma once

#include "common/list.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

void print_ac_detail(Output &out, std::uint32_t direction, std::uint8_t *show_data);
void print_pw_detail(Output &out, std::uint32_t direction, std::uint8_t *show_data);
void print_bridge_detail(Output &out, std::uint32_t direction, std::uint8_t *show_data);
void print_bridge_port_detail(Output &out, std::uint32_t direction, std::uint8_t *show_data);
void print_bridge_mac_detail(Output &out, std::uint32_t direction, std::uint8_t *show_data);

/// The word that opens an object's first line; what follows it follows without a comma.
inline void print_direction(List &line, std::uint32_t direction)
{
    line.text("%s ", direction == L2FIB_INGRESS ? "Ingress" : "Egress");
}

} // namespace l2fib
