// A router whose every answer the tests decide.
#pragma once

#include <cstdint>
#include <functional>

namespace l2fib
{

struct TestPlatform {
    std::uint32_t card_type = 0x1e1000;
    std::uint64_t monotonic_seconds = 0;
    bool knows_statuses = true;
    std::uint32_t ifhandle_status = 0;
    std::uint32_t ifhandle_virtual = 0;
    std::function<void()> when_asked_for_card;
};

extern TestPlatform test_platform;

} // namespace l2fib
