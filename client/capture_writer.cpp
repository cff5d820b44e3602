#include "client/capture_writer.h"

#include "client/hex_digits.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace l2fib
{

static std::string hex_text(std::uint32_t number)
{
    std::array<char, sizeof "0xffffffff"> text{};
    std::snprintf(text.data(), text.size(), "0x%x", number);
    return text.data();
}

std::string format_capture(const Capture &capture)
{
    const Router &router = capture.router;
    nlohmann::ordered_json line;
    line["object"] = capture.object->name;
    line["node"] = capture.node;
    line["card"] = hex_text(router.card_type);
    if (capture.object->has_views()) {
        line["direction"] = capture.direction->name;
        line["view"] = capture.shown_view()->name;
    }
    if (capture.byte_order != &byte_orders().front()) {
        line["byte_order"] = capture.byte_order->name;
    }
    if (router.clocks) {
        line["monotonic_seconds"] = router.clocks->monotonic_seconds;
        line["wall_seconds"] = router.clocks->wall_seconds;
    }
    if (router.time_zone) {
        line["time_zone"] = *router.time_zone;
    }
    if (!router.virtual_interfaces.empty()) {
        for (const std::uint32_t handle : router.virtual_interfaces) {
            line["virtual_interfaces"].push_back(hex_text(handle));
        }
    }
    line["show_data"] = hex_of_bytes(capture.show_data);
    return line.dump();
}

} // namespace l2fib
