#include "tests/support/test_platform.h"

#include "platform/platform.h"

#include <cstdio>

l2fib::TestPlatform l2fib::test_platform;

uint32_t node_card_type(uint32_t /*node_id*/)
{
    if (l2fib::test_platform.when_asked_for_card) {
        l2fib::test_platform.when_asked_for_card();
    }
    return l2fib::test_platform.card_type;
}

void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds)
{
    *seconds = l2fib::test_platform.monotonic_seconds;
    *nanoseconds = 999'999'999;
}

const char *status_text(uint32_t status)
{
    static char text[sizeof "status 0x00000000"];
    std::snprintf(text, sizeof text, "status 0x%08x", status);
    return l2fib::test_platform.knows_statuses ? text : nullptr;
}

uint32_t ifhandle_is_virtual(uint32_t /*ifhandle*/, uint32_t *is_virtual)
{
    *is_virtual = l2fib::test_platform.ifhandle_virtual;
    return l2fib::test_platform.ifhandle_status;
}
