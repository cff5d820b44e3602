#include "client/offline_platform.h"

#include "platform/platform.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <regex>

namespace l2fib
{

static const Router this_machine;
static const Router *current = &this_machine;

static std::uint64_t seconds_of(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<std::uint64_t>(now.tv_sec);
}

void answer_for(const Router &router)
{
    static std::string time_zone; // of the last router that had one; nothing else here sets it
    if (router.time_zone && *router.time_zone != time_zone) {
        time_zone = *router.time_zone;
        setenv("TZ", time_zone.c_str(), 1);
    }
    current = &router;
}

bool is_time_zone(const std::string &text)
{
    static const std::string name = "([A-Za-z]{3,6}|<[A-Za-z0-9+-]{3,6}>)";
    static const std::string time = "[+-]?[0-9]{1,3}(:[0-9]{1,2}){0,2}";
    static const std::string day = "(J?[0-9]{1,3}|M[0-9]{1,2}\\.[1-5]\\.[0-6])(/" + time + ")?";
    static const std::regex posix_zone(name + time + "(" + name + "(" + time + ")?(," + day + "," + day + ")?)?");
    constexpr std::size_t longest = 64;
    return text.size() <= longest && std::regex_match(text, posix_zone);
}

Clocks clocks_now()
{
    return {seconds_of(CLOCK_MONOTONIC), seconds_of(CLOCK_REALTIME)};
}

std::string local_time_zone()
{
    const char *named = std::getenv("TZ");
    if (named != nullptr && is_time_zone(named)) {
        return named;
    }
    // A compiled zone ends in a line that describes it.
    const std::string path = named == nullptr ? "/etc/localtime" : std::string("/usr/share/zoneinfo/") + named;
    std::ifstream file(path, std::ios::binary);
    std::string zone;
    for (std::string line; std::getline(file, line);) {
        zone = line;
    }
    return is_time_zone(zone) ? zone : "UTC0";
}

} // namespace l2fib

uint32_t node_card_type(uint32_t /*node_id*/)
{
    return l2fib::current->card_type;
}

void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds)
{
    *seconds = l2fib::current->clocks ? l2fib::current->clocks->monotonic_seconds : l2fib::seconds_of(CLOCK_MONOTONIC);
    *nanoseconds = 0;
}

uint32_t ifhandle_is_virtual(uint32_t ifhandle, uint32_t *is_virtual)
{
    const auto &handles = l2fib::current->virtual_interfaces;
    *is_virtual = std::find(handles.begin(), handles.end(), ifhandle) != handles.end() ? 1 : 0;
    return 0;
}

/// Found before libc's: the library turns monotonic stamps into wall-clock time, and that has to be the time at which
/// the show data was taken.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): libc's name is reserved
extern "C" [[gnu::visibility("default")]] std::time_t time(std::time_t *result) noexcept
{
    const auto &clocks = l2fib::current->clocks;
    const auto now = static_cast<std::time_t>(clocks ? clocks->wall_seconds : l2fib::seconds_of(CLOCK_REALTIME));
    if (result != nullptr) {
        *result = now;
    }
    return now;
}
