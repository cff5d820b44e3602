#include "hw/resource.h"

#include "common/failure.h"
#include "common/flags.h"
#include "common/formatters.h"
#include "common/working_copies.h"
#include "hw/objects.h"
#include "hw/view_names.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <iterator>

namespace l2fib
{

constexpr Literal resource_view = "zel_l2fib_trident_print_resource";

static constexpr Literal operation_names[] = {"Set", "Modify", "Clear", "Get", "Get Info", "Delete All"};
static_assert(std::size(operation_names) == resource_operations);
enum Operation : unsigned { modify = 1, get = 3, delete_all = 5 };

struct ResourceType {
    Literal name;
    std::uint32_t operations = all_flags; ///< those whose requests are counted, by bit
    bool has_entries = true;              ///< whether the entries in use are known
};

static constexpr ResourceType types[] = {
    {"XID"},
    {"BRIDGE"},
    {"STATIC MAC"},
    {"BRIDGE PORT"},
    {"UIDB", all_flags, false},
    {"VPLS PW STATS", all_flags_but(modify) & all_flags_but(get) & all_flags_but(delete_all), false},
    {"ISID"},
    {"L2TP"},
    {"DHCP"},
    {"MSTI_ESI"},
    {"IPV6 L2TPV3"},
    {"VNI INFO"},
    {"EVPN_OLE"},
};
static_assert(std::size(types) == resource_types);

constexpr Literal rule = "              ---------------------------------------------\n";

/// The names of the operations above their columns, and "T/F" under each. A name of ten letters makes its column one
/// wider than the others.
static void print_columns(Output &out)
{
    constexpr int width = 11;
    out.text("%13s ", "");
    for (const Literal &name : operation_names) {
        const auto size = static_cast<int>(name.size);
        const int before = (width - size) / 2;
        out.blanks(std::max(before, 1));
        out.text("%s", name);
        out.blanks(width - before - size);
        out.text(" ");
    }
    out.text("   In use\n");

    out.text("%13s ", "");
    for (unsigned operation = 0; operation < resource_operations; ++operation) {
        out.text("    T/F     ");
    }
    out.text("    T/Max\n");
}

/// The sums of a column. Counts wrap at 32 bits, as those that are added do.
struct ColumnTotal {
    std::uint32_t t_count = 0;
    std::uint32_t f_count = 0;
    std::uint64_t time = 0;
};

static void print_counts(Output &out, const ResourceType &type, const ResourceUse &use,
                         ColumnTotal (&totals)[resource_operations])
{
    out.text("%13s ", type.name);
    for (unsigned i = 0; i < resource_operations; ++i) {
        const ResourceOperation &operation = use.operations[i];
        if (!is_set(type.operations, i)) {
            out.text("    -/-     ");
            continue;
        }
        out.text("%5d/%-5d ", operation.t_count, operation.f_count);
        totals[i].t_count += operation.t_count;
        totals[i].f_count += operation.f_count;
    }
    if (type.has_entries) {
        out.text("%5d/%-6d\n", use.in_use, use.maximum);
    } else {
        out.text("    -/-\n");
    }
}

/// Learned MACs have no requests to count, only entries.
static void print_mac_counts(Output &out, std::uint32_t total_macs, U32 maximum)
{
    out.text("%13s ", "TOTAL MAC");
    out.text("    -/-    ");
    for (unsigned operation = 1; operation < resource_operations; ++operation) {
        out.text("     -/-    ");
    }
    out.text("%6d/%-6d\n", total_macs, maximum);
}

static void print_count_totals(Output &out, const ColumnTotal (&totals)[resource_operations])
{
    out.text("%13s ", "");
    for (unsigned operation = 0; operation < resource_operations; ++operation) {
        out.text("----------- ");
    }
    out.text("\n%13s ", "Total");
    for (const ColumnTotal &total : totals) {
        out.text("%5d/%-5d ", total.t_count, total.f_count);
    }
    out.text("\n\n");
}

/// Prints the first nine characters of a time: "59 m 59 s" loses its closing blank.
static void print_time(Output &out, std::uint64_t time)
{
    constexpr std::size_t longest = 9;
    Text text = elapsed_text(time);
    text.size = std::min(text.size, longest);
    out.text("%11s", text);
}

static void print_times(Output &out, const ResourceType &type, const ResourceUse &use,
                        ColumnTotal (&totals)[resource_operations])
{
    out.text("%13s ", type.name);
    for (unsigned i = 0; i < resource_operations; ++i) {
        print_time(out, use.operations[i].time);
        totals[i].time += use.operations[i].time;
    }
    out.text("\n");
}

static void print_time_totals(Output &out, const ColumnTotal (&totals)[resource_operations])
{
    out.text("\n%13s ", "Total");
    for (const ColumnTotal &total : totals) {
        print_time(out, total.time);
    }
    out.text("\n");
}

/// What an NP uses of each type, in host order.
class UsesOfNp
{
public:
    UsesOfNp(const ResourceData &received, std::uint32_t np)
    {
        for (unsigned type = 0; type < resource_types; ++type) {
            copies_[type] = received.uses[type][np];
            copies_[type].to_host();
        }
    }

    const ResourceUse &operator[](unsigned type) const { return copies_[type].converted_before(); }

private:
    Received<ResourceUse> copies_[resource_types];
};

static void print_np(Output &out, std::uint32_t np, const ResourceData &received, std::uint32_t total_macs)
{
    const UsesOfNp uses(received, np);
    ColumnTotal totals[resource_operations];
    out.text("\n"
             "                     Hardware Resource Summary - NP%d\n",
             np);
    out.text("%s", rule);
    print_columns(out);
    for (unsigned type = 0; type < resource_types; ++type) {
        print_counts(out, types[type], uses[type], totals);
    }
    print_mac_counts(out, total_macs, uses[resource_static_mac].maximum);
    print_count_totals(out, totals);

    out.text("                     Hardware Performance Summary \n");
    out.text("%s", rule);
    for (unsigned type = 0; type < resource_types; ++type) {
        print_times(out, types[type], uses[type], totals);
    }
    print_time_totals(out, totals);
}

/// The size to check: the producer's, unless that one is right and fewer bytes have come.
static std::uint64_t size_to_judge(std::uint64_t length, std::uint64_t expected, ShowData data)
{
    return length == expected ? std::min(length, data.size()) : length;
}

/// `length` is the size of the resource data by the producer's account.
static std::uint32_t print_resource_data(Output &out, std::uint32_t level, ShowData data, std::uint64_t length)
{
    const auto *received_np_count = data.at<const BigU32>(0);
    const std::uint32_t np_count = received_np_count == nullptr ? 1 : received_np_count->value();
    if (!np_count_is_valid(np_count)) {
        out.line(level);
        print_invalid_np_count(out, np_count);
        return 0;
    }
    const std::uint64_t expected = sizeof(ResourceData) + sizeof(BigU32) * np_count;
    if (const std::uint64_t size = size_to_judge(length, expected, data); size != expected) {
        out.line(level, "%s: invalid data size: %d, expecting %d\n", resource_view, // both less the NP count
                 static_cast<std::uint32_t>(size - sizeof(BigU32)),
                 static_cast<std::uint32_t>(expected - sizeof(BigU32)));
        return L2FIB_SHOW_ERR_DATA;
    }
    const auto *received = data.at<ResourceData>(0);
    const auto total_macs = data.array_at<const BigU32>(sizeof(ResourceData), np_count);
    for (std::uint32_t np = 0; np < np_count; ++np) {
        print_np(out, np, *received, total_macs[np]);
    }
    out.text("\n");
    for (std::uint32_t np = 0; np < np_count; ++np) {
        out.text("                     Mac Scan Summary - NP%d\n", np);
        out.text("%s", rule);
        print_mac_scan(out, HostCopy(received->mac_scans[np]).record());
        out.text("\n");
    }
    return 0;
}

static std::uint32_t print_resources(Output &out, std::uint32_t level, ShowData data)
{
    if (data.is_null()) {
        out.line(level);
        return null_summary(out, resource_view);
    }
    const auto *head = data.at<const ResourceShowData>(0);
    return head == nullptr ? short_data(out, level, data.size(), sizeof *head)
                           : print_resource_data(out, level, data.from(sizeof *head), head->length);
}

std::uint32_t show_resources(Output &out, std::uint32_t level, std::uint32_t /*direction*/, ShowData data)
{
    const std::uint32_t status = print_resources(out, level, data);
    return report_failure(out, level, hardware_private_view, L2FIB_OBJTYPE_RSRC_MON, status, "\n");
}

} // namespace l2fib
