#include "fuzz/call.h"

#include "platform/platform.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace l2fib
{

static Call router;

static std::span<const std::uint8_t> after_call(std::span<const std::uint8_t> input)
{
    return input.subspan(std::min(input.size(), sizeof(Call)));
}

/// Levels of both ends of the numbers. Those between them differ in the blanks alone, which would take all the time.
static std::uint32_t printable_level(std::uint32_t level)
{
    constexpr std::uint32_t enough = 64;
    return level < enough || level >= std::uint32_t{0} - enough ? level : level % enough;
}

CallInput::CallInput(std::span<const std::uint8_t> input) : show_data(after_call(input))
{
    std::memcpy(&call, input.data(), std::min(input.size(), sizeof call));
    data = call.has(Call::without_show_data) ? nullptr : show_data.data();
    level = printable_level(call.level);
    router = call;
}

} // namespace l2fib

uint32_t node_card_type(uint32_t /*node_id*/)
{
    return l2fib::router.card_type;
}

void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds)
{
    *seconds = l2fib::router.monotonic_seconds;
    *nanoseconds = l2fib::router.nanoseconds;
}

const char *status_text(uint32_t status)
{
    static char text[sizeof "status 0x00000000"];
    std::snprintf(text, sizeof text, "status 0x%08x", status);
    return text;
}

uint32_t ifhandle_is_virtual(uint32_t /*ifhandle*/, uint32_t *is_virtual)
{
    *is_virtual = l2fib::router.ifhandle_is_virtual & 1U;
    return l2fib::router.ifhandle_status;
}
