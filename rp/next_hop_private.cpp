#include "common/show_data.h"
#include "common/two_columns.h"
#include "rp/next_hop_context.h"
#include "rp/private.h"

namespace l2fib
{

static void print_descriptor(Output &out, const char *key, const PathDescriptor &path)
{
    const Section section(out, key);
    TwoColumns values{out, "\t "};
    values.item("is lag            : %d", path.flags.test(PathDescriptor::lag, "lag"));
    values.item("sfp/lag id      : %d ", path.sfp_or_lagid);
    values.item("use sat lag hash  : %d", path.flags.test(PathDescriptor::use_sat_lag_hash, "use_sat_lag_hash"));
    values.item("sat lag hash    : %d", path.sat_lag_hash);
    values.item("is ifh valid      : %d", path.flags.test(PathDescriptor::ifhandle_valid, "ifhandle_valid"));
    values.item("ifhandle        : 0x%08x", path.ifhandle);
}

static void print_path(Output &out, const IgpPath &path)
{
    const Element of_path(out, "paths");
    const auto backup_valid = path.state.flags.test(PathState::backup_valid, "backup_valid");
    out.text("\nIGP Path\n--------\n");
    TwoColumns values{out, "\t "};
    values.item("is unresolved     : %d", path.state.flags.test(PathState::unresolved, "unresolved"));
    values.item("is bkup valid   : %d", backup_valid);

    out.text("\nPrimary Path\n------------\n");
    print_descriptor(out, "primary", path.primary);
    if (backup_valid) {
        out.text("\nBackup Path\n-----------\n");
        print_descriptor(out, "backup", path.backup);
    }
}

static void print_next_hop(Output &out, std::uint8_t *show_data)
{
    const NextHopContext &next_hop = ShowData::unchecked<Received<NextHopContext>>(show_data).to_host();

    out.text("\n\nNext hop context(l3fib)\n-----------------\n");
    TwoColumns values{out, "\t "};
    values.line("l2vpn ldi index   : %d ", next_hop.l2vpn_ldi_index);
    values.item("recursion level   : %d", next_hop.recursion_level);
    values.item("num paths       : %d", next_hop.num_paths);
    values.item("ecd version       : %d", next_hop.ecd_version);
    values.item("ecd type        : %d", next_hop.ecd_type);
    values.item("feci comp id      : %d", next_hop.feci_comp_id);
    values.item("ecd data length : %d", next_hop.ecd_data_length);

    for (Received<IgpPath> &path :
         ShowData::unchecked_array<Received<IgpPath>>(show_data, sizeof next_hop, next_hop.num_paths)) {
        print_path(out, path.to_host());
    }
}

static std::uint64_t next_hop_end(ShowData data)
{
    const auto *next_hop = data.at<Received<NextHopContext>>(0);
    const std::uint64_t paths = next_hop == nullptr ? 0 : next_hop->peek<&NextHopContext::num_paths>();
    return sizeof(NextHopContext) + paths * sizeof(IgpPath);
}

constexpr PrivateView next_hop_private{next_hop_end, print_next_hop};

} // namespace l2fib
