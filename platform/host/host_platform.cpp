// Takes the router's place on other machines, where saved captures are read.
#include "platform/platform.h"
#include "zel_l2fib/show.h"

#include <cstdio>
#include <ctime>

uint32_t node_card_type(uint32_t /*node_id*/)
{
    constexpr uint32_t supported_card = 0x1e1000;
    return supported_card;
}

void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds)
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    *seconds = static_cast<uint64_t>(now.tv_sec);
    *nanoseconds = static_cast<uint64_t>(now.tv_nsec);
}

const char *status_text(uint32_t status)
{
    switch (status) {
    case 0: return "success";
    case L2FIB_SHOW_ERR_DATA: return "show data malformed or too short";
    case L2FIB_SHOW_ERR_ARGS: return "show data missing or of unacceptable size";
    case L2FIB_SHOW_ERR_NOMEM: return "out of memory";
    default: break;
    }
    static char unknown[sizeof "unknown status 0x00000000"];
    std::snprintf(unknown, sizeof unknown, "unknown status 0x%08x", status);
    return unknown;
}

uint32_t ifhandle_is_virtual(uint32_t /*ifhandle*/, uint32_t * /*is_virtual*/)
{
    // The router's interfaces are not known here. The caller then shows the object.
    return L2FIB_SHOW_ERR_ARGS;
}
