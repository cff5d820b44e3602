#include "common/formatters.h"

#include "common/output.h"
#include "platform/platform.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace l2fib
{

Text<256> timestamp_text(std::uint64_t stamp)
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
    const std::tm *local = std::localtime(&wall);
    Text<256> time;
    if (local == nullptr || std::strftime(time.chars, sizeof time.chars, "%m/%d/%Y %H:%M:%S", local) == 0) {
        return {"unknown_time"};
    }
    return time;
}

Text<12> shg_text(std::uint32_t group)
{
    Text<12> text;
    zel_l2fib_get_shg_str(text.chars, sizeof text.chars, static_cast<int>(group));
    return text;
}

Text<15> mac_text(const Bytes<6> &mac)
{
    Text<15> text;
    std::snprintf(text.chars, sizeof text.chars, "%02x%02x.%02x%02x.%02x%02x", mac[0], mac[1], mac[2], mac[3], mac[4],
                  mac[5]);
    return text;
}

} // namespace l2fib

int zel_l2fib_print_elapsed(uint64_t ns, char *text, uint32_t capacity)
{
    std::memset(text, 0, capacity);
    const std::uint64_t ms = ns / 1'000'000;
    const std::uint64_t seconds = ns / 1'000'000'000;
    const std::uint64_t minutes = seconds / 60;
    const auto hours = static_cast<std::uint32_t>(minutes / 60);
    const std::uint32_t days = hours / 24;
    if (ms == 0) {
        return std::snprintf(text, capacity, "%s", "< 1 ms ");
    }
    if (seconds <= 59 && ms % 1000 != 0) {
        // Milliseconds as a plain number: 2 s and 5 ms are "2.5 s ".
        return std::snprintf(text, capacity, "%lu.%lu s ", seconds, ms % 1000);
    }
    if (seconds <= 59) {
        return std::snprintf(text, capacity, "%lu s", seconds); // the one form without a closing blank
    }
    if (minutes <= 59) {
        return std::snprintf(text, capacity, "%lu m %lu s ", minutes, seconds - 60 * minutes);
    }
    if (hours <= 23) {
        return std::snprintf(text, capacity, "%u h %lu m ", hours, minutes - std::uint64_t{60} * hours);
    }
    if (days <= 99) {
        return std::snprintf(text, capacity, "%u d %u h ", days, hours - 24 * days);
    }
    return std::snprintf(text, capacity, "%u d ", days);
}

int zel_l2fib_get_shg_str(char *text, int capacity, int value)
{
    constexpr const char *names[] = {"None", "VFI Enabled", "Enabled"};
    const auto room = static_cast<std::size_t>(std::max(capacity, 0));
    if (value >= 0 && value < static_cast<int>(std::size(names))) {
        return std::snprintf(text, room, "%s", names[value]);
    }
    return std::snprintf(text, room, "%d", value);
}

int print_mac(const uint8_t *mac)
{
    l2fib::Bytes<6> bytes{};
    std::copy_n(mac, bytes.size(), bytes.begin());
    return l2fib::Output{}.text("%s", l2fib::mac_text(bytes));
}

int print_ip(const uint32_t *address)
{
    const std::uint32_t ip = *address;
    return l2fib::Output{}.text("%u.%u.%u.%u", ip >> 24, ip >> 16 & 0xff, ip >> 8 & 0xff, ip & 0xff);
}

int print_words(const void *words, int length)
{
    l2fib::Output out;
    const auto *word = static_cast<const l2fib::U32 *>(words);
    int printed = out.text("[0x");
    for (std::int64_t left = length; left > 0; left -= 4, ++word) {
        printed += out.text("%08x", word->from_wire());
        if (left > 4) {
            printed += out.text(" ");
        }
    }
    return printed + out.text("]");
}
