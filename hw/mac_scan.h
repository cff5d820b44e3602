// The statistics of an NP's MAC scans.
#pragma once

#include "common/output.h"
#include "common/record.h"

#include <cstddef>

namespace l2fib
{

constexpr unsigned mac_scan_events = 8;
constexpr unsigned mac_scan_states = 13;

struct MacScan {
    U32 events[mac_scan_events];
    U32 states[mac_scan_states];    //  32
    U32 sent[mac_scan_states];      //  84  requests, by state
    U32 sent_errors;                // 136
    U32 responses[mac_scan_states]; // 140  by state
    U32 response_errors;            // 192
    U32 responses_to_freed;         // 196  to requests that were given up

    using R = MacScan;
    using Fields = l2fib::Fields<&R::events, &R::states, &R::sent, &R::sent_errors, &R::responses, &R::response_errors,
                                 &R::responses_to_freed>;
};
static_assert(sizeof(MacScan) == 200 && offsetof(MacScan, responses) == 140);

/// Prints the counts that are not 0.
void print_mac_scan(Output &out, const MacScan &scan);

} // namespace l2fib
