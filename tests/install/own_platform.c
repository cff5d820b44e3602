/* The operations of a router whose cards are not supported, unlike the stand-in's. */
#include <zel_l2fib/platform.h>

uint32_t node_card_type(uint32_t node_id)
{
    (void)node_id;
    return 0x1e1004;
}

void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds)
{
    *seconds = 0;
    *nanoseconds = 0;
}

const char *status_text(uint32_t status)
{
    (void)status;
    return "a status";
}

uint32_t ifhandle_is_virtual(uint32_t ifhandle, uint32_t *is_virtual)
{
    (void)ifhandle;
    *is_virtual = 0;
    return 0;
}
