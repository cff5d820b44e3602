// What the platform counts: objects, events, the use of the hardware tables, the HAL's shared memory.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/hal_summary.h"
#include "hw/resource.h"
#include "rp/event_statistics.h"
#include "rp/state_summary.h"

namespace l2fib
{

/// Numbers that differ from row to row, and are 0 for the kinds that this router does not have.
static std::uint32_t objects_of(const ObjectKind &kind)
{
    constexpr unsigned kinds_in_use = 9;
    return kind.row < kinds_in_use ? 1000 / (kind.row + 1) : 0;
}

std::vector<std::uint8_t> make_state_summary()
{
    StateSummary summary{};
    for (const ObjectKind &kind : object_kinds) {
        ObjectCounts &counts = summary.kinds[kind.row];
        set(counts.created, objects_of(kind));
        set(counts.bound, objects_of(kind) * 9 / 10);
        set(counts.unbound, objects_of(kind) / 10);
    }
    return ShowDataBuilder{}.add(summary).add_zeros(4).bytes();
}

/// The value that was set.
static std::uint64_t sent(const U32 &number)
{
    return from_big_endian(number.value());
}

std::vector<std::uint8_t> make_event_statistics()
{
    constexpr std::uint64_t ns_per_event = 37'500'000;
    EventCounts counts{};
    EventTimes times{};
    for (const ObjectKind &kind : object_kinds) {
        Events<U32> &count = counts.kinds[kind.row];
        set(count.created, objects_of(kind));
        set(count.modified, objects_of(kind) / 3);
        set(count.bound, objects_of(kind) + 20);
        set(count.unbound, objects_of(kind) / 2);
        set(count.deleted, objects_of(kind) / 7);

        Events<U64> &time = times.kinds[kind.row];
        set(time.created, sent(count.created) * ns_per_event);
        set(time.modified, sent(count.modified) * ns_per_event / 4);
        set(time.bound, sent(count.bound) * ns_per_event * 200);
        set(time.unbound, sent(count.unbound) * ns_per_event * 8000);
        set(time.deleted, sent(count.deleted) * ns_per_event / 1000);
    }
    return ShowDataBuilder{}.add(counts).add(times).bytes();
}

static ResourceUse resource_use(std::uint32_t type, std::uint32_t np)
{
    ResourceUse use{};
    for (std::uint32_t i = 0; i < resource_operations; ++i) {
        set(use.operations[i].t_count, (type + 1) * 40 / (i + 1));
        set(use.operations[i].time, std::uint64_t{type + 1} * (i + 1) * 700'000'000 * (1 + std::uint64_t{300} * np));
    }
    set(use.in_use, (type + 1) * 25);
    set(use.maximum, 16384 * (type + 1));
    return use;
}

std::vector<std::uint8_t> make_resources()
{
    constexpr std::uint32_t np_count = 2;
    ResourceData resources{};
    set(resources.np_count, np_count);
    for (std::uint32_t type = 0; type < resource_types; ++type) {
        for (std::uint32_t np = 0; np < np_count; ++np) {
            resources.uses[type][np] = as_sent(resource_use(type, np));
        }
    }
    MacScan &scan = resources.mac_scans[0].to_compose();
    set(scan.events[0], 12);
    set(scan.events[6], 3);
    set(scan.states[10], 1);
    set(scan.sent[1], 12);
    set(scan.responses[1], 12);
    set(scan.sent[10], 3);
    set(scan.responses[10], 3);
    set(scan.responses_to_freed, 2);

    ResourceShowData head{};
    set(head.length, sizeof resources + np_count * sizeof(BigU32));
    BigU32 macs[np_count];
    set(macs[0], 48211);
    set(macs[1], 48197);
    return ShowDataBuilder{}.add(head).add(resources).add(macs).bytes();
}

std::vector<std::uint8_t> make_hal_summary()
{
    BigU32 np_count;
    set(np_count, 2);
    BigU32 high_water_marks[2];
    set(high_water_marks[0], 51200);
    set(high_water_marks[1], 49982);
    BigU16 resource_status[2];
    set(resource_status[0], 0);
    set(resource_status[1], 0x0004);
    HalSummaryTotals totals{};
    set(totals.flags, 0x0003);
    set(totals.load_balance_type, 0x2);
    set(totals.negative_mac_counter_hits, 17);
    return ShowDataBuilder{}.add(np_count).add(high_water_marks).add(resource_status).add(totals).bytes();
}

} // namespace l2fib
