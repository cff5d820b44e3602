// A next hop with two paths, the first of them protected by a backup.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "rp/next_hop_context.h"

namespace l2fib
{

static void set_path(PathDescriptor &path, std::initializer_list<unsigned> flags, std::uint16_t port,
                     std::uint32_t ifhandle)
{
    set_flags(path.flags, flags);
    set(path.sfp_or_lagid, port);
    set(path.ifhandle, ifhandle);
}

std::vector<std::uint8_t> make_next_hop()
{
    NextHopContext next_hop{};
    set(next_hop.l2vpn_ldi_index, 0x2001);
    set(next_hop.recursion_level, 1);
    set(next_hop.num_paths, 2);
    set(next_hop.ecd_version, 2);
    set(next_hop.ecd_type, 5);
    set(next_hop.feci_comp_id, 7);
    set(next_hop.ecd_data_length, 48);

    IgpPath protected_path{};
    set_flags(protected_path.state.flags, {PathState::backup_valid});
    set_path(protected_path.primary, {PathDescriptor::lag, PathDescriptor::ifhandle_valid}, 0x40, 0x08000060);
    set_path(protected_path.backup, {PathDescriptor::ifhandle_valid}, 0x112, 0x080000a0);

    IgpPath unresolved{};
    set_flags(unresolved.state.flags, {PathState::unresolved});
    set_path(unresolved.primary, {PathDescriptor::use_sat_lag_hash}, 0x113, 0);
    set(unresolved.primary.sat_lag_hash, 19);

    return ShowDataBuilder{}.add(next_hop).add(protected_path).add(unresolved).bytes();
}

} // namespace l2fib
