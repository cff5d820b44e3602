#include "common/formatters.h"

#include "common/number_text.h"
#include "common/output.h"
#include "platform/platform.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstring>
#include <ctime>

namespace l2fib
{

Text timestamp_of(std::uint64_t stamp)
{
    constexpr std::uint64_t ns_per_second = 1'000'000'000;
    if (stamp == 0) {
        return {"N/A"};
    }
    std::uint64_t monotonic_seconds = 0;
    std::uint64_t nanoseconds = 0;
    monotonic_now(&monotonic_seconds, &nanoseconds);
    const auto wall_now = static_cast<std::uint64_t>(std::time(nullptr));

    // The router counts wall-clock seconds in 32 bits.
    const std::time_t wall = static_cast<std::uint32_t>(wall_now - monotonic_seconds + stamp / ns_per_second);
    tzset(); // the zone may have changed since the last call, which localtime_r alone does not notice
    std::tm local{};
    if (localtime_r(&wall, &local) == nullptr) {
        return {"unknown_time"};
    }
    const auto part = [](int number) { return static_cast<std::uint16_t>(number); };
    return number_text("%02u/%02u/%u %02u:%02u:%02u", part(local.tm_mon + 1), part(local.tm_mday),
                       part(local.tm_year + 1900), part(local.tm_hour), part(local.tm_min), part(local.tm_sec));
}

Text shg_of(std::uint32_t group)
{
    switch (group) {
    case 0: return {"None"};
    case 1: return {"VFI Enabled"};
    case 2: return {"Enabled"};
    default: return number_text("%d", group);
    }
}

Text mac_of(const Bytes<6> &mac)
{
    const auto pair = [&mac](unsigned first) { return static_cast<std::uint16_t>(mac[first] << 8U | mac[first + 1]); };
    return number_text("%04x.%04x.%04x", pair(0), pair(2), pair(4));
}

Text elapsed_of(std::uint64_t ns)
{
    const std::uint64_t ms = ns / 1'000'000;
    const std::uint64_t seconds = ns / 1'000'000'000;
    const std::uint64_t minutes = seconds / 60;
    const auto hours = static_cast<std::uint32_t>(minutes / 60);
    const std::uint32_t days = hours / 24;
    if (ms == 0) {
        return {"< 1 ms "};
    }
    if (seconds <= 59 && ms % 1000 != 0) {
        // Milliseconds as a plain number: 2 s and 5 ms are "2.5 s ".
        return number_text("%lu.%lu s ", seconds, ms % 1000);
    }
    if (seconds <= 59) {
        return number_text("%lu s", seconds); // the one form without a closing blank
    }
    if (minutes <= 59) {
        return number_text("%lu m %lu s ", minutes, seconds - 60 * minutes);
    }
    if (hours <= 23) {
        return number_text("%u h %lu m ", hours, minutes - std::uint64_t{60} * hours);
    }
    if (days <= 99) {
        return number_text("%u d %u h ", days, hours - 24 * days);
    }
    return number_text("%u d ", days);
}

/// Stores a text as snprintf does, and returns the same.
static int store(const Text &text, char *room, std::size_t capacity)
{
    if (capacity != 0) {
        const std::size_t fitting = std::min(text.size, capacity - 1);
        std::memcpy(room, text.chars, fitting);
        room[fitting] = '\0';
    }
    return static_cast<int>(text.size);
}

} // namespace l2fib

int zel_l2fib_print_elapsed(uint64_t ns, char *text, uint32_t capacity)
{
    std::memset(text, 0, capacity);
    return l2fib::store(l2fib::elapsed_of(ns), text, capacity);
}

int zel_l2fib_get_shg_str(char *text, int capacity, int value)
{
    const auto room = static_cast<std::size_t>(std::max(capacity, 0));
    return l2fib::store(l2fib::shg_of(static_cast<std::uint32_t>(value)), text, room);
}

int print_mac(const uint8_t *mac)
{
    l2fib::Bytes<6> bytes{};
    std::copy_n(mac, bytes.size(), bytes.begin());
    return l2fib::Output{}.text("%s", l2fib::mac_of(bytes));
}

int print_ip(const uint32_t *address)
{
    const std::uint32_t ip = *address;
    return l2fib::Output{}.text("%u.%u.%u.%u", ip >> 24, ip >> 16 & 0xff, ip >> 8 & 0xff, ip & 0xff);
}

int print_words(const void *words, int length)
{
    l2fib::Output out;
    const auto *word = static_cast<const l2fib::BigU32 *>(words);
    int printed = out.text("[0x");
    for (std::int64_t left = length; left > 0; left -= 4, ++word) {
        printed += out.text("%08x", *word);
        if (left > 4) {
            printed += out.text(" ");
        }
    }
    return printed + out.text("]");
}
