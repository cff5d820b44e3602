// Proves that any line can be read as a capture, that what is read is what the line says, whatever lines came before,
// that it is written as a line which is read as the same, and that showing it keeps to its show data.
#include "client/capture_reader.h"
#include "client/capture_writer.h"
#include "client/hex_digits.h"
#include "fuzz/capture_lines.h"
#include "fuzz/exact_copy.h"
#include "fuzz/target.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace l2fib
{

/// JSON as a document, whose numbers may be larger than a double.
using Document =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, long double>;

static std::string lower(std::string digits)
{
    std::transform(digits.begin(), digits.end(), digits.begin(),
                   [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c; });
    return digits;
}

static std::uint64_t number_of(const Document &value)
{
    if (!value.is_string()) {
        return value.get<std::uint64_t>();
    }
    const auto text = value.get<std::string>();
    return std::stoull(text, nullptr, text.starts_with("0x") ? 16 : 10);
}

static std::uint64_t number_at(const Document &members, const char *name, std::uint64_t otherwise)
{
    return members.contains(name) ? number_of(members.at(name)) : otherwise;
}

/// Compares a capture with what a document has, and knows nothing of how it was read.
static void compare(const Capture &capture, const Document &members)
{
    const Router &router = capture.router;
    const Router usual;
    require(members.at("object") == capture.object->name, "the object is the line's");
    require(lower(members.at("show_data")) == hex_of_bytes(capture.show_data), "the show data is the line's");
    require(number_at(members, "node", 0) == capture.node, "the node is the line's");
    require(number_at(members, "card", usual.card_type) == router.card_type, "the card is the line's");
    require(members.value("direction", "ingress") == capture.direction->name, "the direction is the line's");
    require(members.value("view", "none") == (capture.view == nullptr ? "none" : capture.view->name),
            "the view is the line's");
    require(members.value("byte_order", "little") == capture.byte_order->name, "the byte order is the line's");
    require(members.value("time_zone", "UTC0") == router.time_zone, "the time zone is the line's");
    require(members.contains("wall_seconds") == router.clocks.has_value(), "there are clocks where the line has them");
    if (router.clocks) {
        require(number_of(members.at("monotonic_seconds")) == router.clocks->monotonic_seconds &&
                    number_of(members.at("wall_seconds")) == router.clocks->wall_seconds,
                "the clocks are the line's");
    }
    std::vector<std::uint32_t> handles;
    for (const Document &handle : members.value("virtual_interfaces", Document::array())) {
        handles.push_back(static_cast<std::uint32_t>(number_of(handle)));
    }
    require(handles == router.virtual_interfaces, "the virtual interfaces are the line's");
}

static void compare(const Capture &capture, std::string_view line)
{
    constexpr std::string_view known[] = {"object",       "show_data",         "node",
                                          "card",         "direction",         "view",
                                          "byte_order",   "time_zone",         "monotonic_seconds",
                                          "wall_seconds", "virtual_interfaces"};
    std::vector<std::string> given;
    const auto note_member = [&](int depth, Document::parse_event_t event, const Document &name) {
        if (depth == 1 && event == Document::parse_event_t::key) {
            given.push_back(name.get<std::string>());
        }
        return true;
    };
    try {
        compare(capture, Document::parse(line, note_member));
    } catch (const Document::out_of_range &) {
        return; // a number that is larger still, in a member that is passed over
    }
    for (const std::string_view name : known) {
        require(std::count(given.begin(), given.end(), name) <= 1, "no member that is known is there twice");
    }
}

/// A line of a file, by a reader that has read the lines before it.
static void check(std::string_view line, CaptureReader &reader)
{
    const CaptureLine read = parse_capture(line);
    const CaptureLine &read_in_turn = reader.read(line);
    require(read_in_turn.error == read.error, "a line is as good as it is alone");
    if (!read.error.empty()) {
        return;
    }
    require(format_capture(read_in_turn.capture) == format_capture(read.capture), "a line says what it says alone");
    const Capture &capture = read.capture;
    compare(capture, line);
    constexpr std::size_t xid_size = 4;
    require(!capture.object->xid(capture.show_data) || capture.show_data.size() >= xid_size,
            "a cross-connect ID is in the show data");

    const std::string written = format_capture(capture);
    const CaptureLine again = parse_capture(written);
    require(again.error.empty(), "what is written can be read");
    require(format_capture(again.capture) == written, "what is read again is the same");

    const ExactCopy show_data(capture.show_data);
    capture.show({show_data.data(), show_data.size()});
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char *>(data), size);
    l2fib::CaptureReader reader;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        l2fib::check(line, reader);
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate_lines(data, size, max_size, seed);
}
