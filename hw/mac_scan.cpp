#include "hw/mac_scan.h"

#include <iterator>

namespace l2fib
{

static constexpr Literal event_names[] = {
    "Local XID", "Global XID", "Grp Local XID in BD", "Grp Global XID in BD", "Grp Local XID", "Grp Global XID",
    "BD",        "Grp BD",
};
static_assert(std::size(event_names) == mac_scan_events);

static constexpr Literal state_names[] = {
    "Init",
    "Local_XID",
    "Global_XID",
    "Grp_Local_XID_in_BD",
    "Grp_Global_XID_in_BD",
    "Grp_all_XID_in_BD",
    "Grp_all_in_BD",
    "Grp_Local_XID",
    "Grp_Global_XID",
    "Grp_ALL_XID",
    "BD",
    "Grp_BD",
    "Grp_ALL",
};
static_assert(std::size(state_names) == mac_scan_states);

[[gnu::always_inline]] static inline void print_count(Output &out, const char *elements, const char *key,
                                                      const Format<Literal, FromField<std::uint32_t>> &format,
                                                      const Literal &name, const U32 &count)
{
    if (count != 0) {
        const Element of_name(out, elements);
        note(out, "name", name);
        out.text<Literal, FromField<std::uint32_t>>(format, name, called(key, count));
    }
}

[[gnu::always_inline]] static inline void print_error_count(Output &out, const Format<U32> &format, const U32 &count)
{
    if (count != 0) {
        out.text<U32>(format, count);
    }
}

void print_mac_scan(Output &out, const MacScan &scan)
{
    for (unsigned event = 0; event < mac_scan_events; ++event) {
        print_count(out, "events", "count", "Mac scan event          %20s %10d\n", event_names[event],
                    scan.events[event]);
    }
    for (unsigned state = 0; state < mac_scan_states; ++state) {
        print_count(out, "states", "count", "Mac scan state          %20s %10d\n", state_names[state],
                    scan.states[state]);
    }
    for (unsigned state = 0; state < mac_scan_states; ++state) {
        print_count(out, "messages", "sent", "Mac scan sent count     %20s %10d\n", state_names[state],
                    scan.sent[state]);
        print_count(out, "messages", "responses", "Mac scan response count %20s %10d\n", state_names[state],
                    scan.responses[state]);
    }
    print_error_count(out, "Mac scan sent count error %10d\n", scan.sent_errors);
    print_error_count(out, "Mac scan response count error %10d\n", scan.response_errors);
    print_error_count(out, "Mac scan response count for freed scan request %10d\n", scan.responses_to_freed);
}

} // namespace l2fib
