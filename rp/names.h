// Names that the views of several objects share.
#pragma once

#include "common/names.h"

namespace l2fib
{

constexpr std::uint32_t service_mtun = 0;
constexpr std::uint32_t service_local_switch = 1;
constexpr std::uint32_t service_vpls = 2;

/// The service (cross-connect type) of an AC or a PW.
template <class Service>
auto service_name(const Service &service)
{
    static constexpr Literal names[] = {"Mtun", "Local Switch", "VPLS", "Snoop", "L2TP", "IPV6_L2TPV3"};
    return name_of(names, service, "Invalid");
}

constexpr std::uint32_t state_bound = 2;
constexpr std::uint32_t state_unbound = 3;

/// The state of an object.
template <class State>
auto state_name(const State &state)
{
    static constexpr Literal names[] = {"Uninitialized", "Created", "Bound", "Unbound", "Deleted"};
    return name_of(names, state, "Invalid");
}

} // namespace l2fib
