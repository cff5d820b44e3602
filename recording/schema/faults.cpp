#include "recording/schema/faults.h"

#include "recording/schema/corpus.h"
#include "recording/schema/value_log.h"

#include <algorithm>
#include <unordered_map>

namespace l2fib
{

/// A view as it was recorded.
struct Recorded {
    explicit Recorded(const Capture &capture) : converted(capture.show_data)
    {
        log.begin(converted);
        text = text_of_recording(capture, converted, log);
    }

    std::vector<std::uint8_t> converted;
    recording::ValueLog log;
    std::string text;
};

std::string fault_of_text(const Capture &capture)
{
    const Recorded recorded(capture);
    Capture shown = capture;
    const std::string text = text_on(stdout, [&] { shown.show(); });
    if (recorded.text != text) {
        return "it prints\n" + recorded.text + "\nin place of\n" + text;
    }
    return recorded.converted == shown.show_data ? "" : "it leaves other show data";
}

/// Where a value ends on a screen, at or after a place: its label, blanks, and its text.
static std::size_t end_of(const recording::LoggedValue &value, const std::string &screen, std::size_t from)
{
    const std::string text(recording::trimmed(value.text));
    for (std::size_t at = screen.find(value.label, from); at != std::string::npos;
         at = screen.find(value.label, at + 1)) {
        const std::size_t begin = screen.find_first_not_of(' ', at + value.label.size());
        if (begin != std::string::npos && screen.compare(begin, text.size(), text) == 0) {
            return begin + text.size();
        }
    }
    return std::string::npos;
}

std::string fault_of_screen(const Capture &capture)
{
    const Recorded recorded(capture);
    std::size_t place = 0;
    for (const recording::LoggedValue &value : recorded.log.values()) {
        if (value.is_on_screen() && !recording::trimmed(value.text).empty()) {
            place = end_of(value, recorded.text, place);
            if (place == std::string::npos) {
                return value.path + " is not in its place: " + value.label + value.text;
            }
        }
    }
    place = 0;
    for (const std::string &name : recorded.log.flags()) {
        place = recorded.text.find(name, place);
        if (place == std::string::npos) {
            return "a flag is not in its place: " + name;
        }
    }
    return {};
}

/// The number in some bytes; none in bytes that are no number of their own.
static std::optional<std::uint64_t> number_in(std::span<const std::uint8_t> bytes, const recording::Place &place,
                                              std::endian stored_order)
{
    const auto kind = place.field == nullptr ? recording::FieldKind::number : place.field->kind;
    if (kind != recording::FieldKind::number && kind != recording::FieldKind::stored) {
        return std::nullopt;
    }
    const bool is_little_endian = kind == recording::FieldKind::stored && stored_order == std::endian::little;
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        number = number << 8U | bytes[is_little_endian ? bytes.size() - 1 - i : i];
    }
    return number;
}

static std::uint64_t low_bytes(std::uint64_t number, std::size_t count)
{
    return number & ~std::uint64_t{0} >> 8 * (sizeof number - count);
}

struct ValuePlace {
    std::size_t offset;
    std::size_t size;
};

/// The bytes that --bytes has values at, by the values' paths.
using Places = std::unordered_multimap<std::string, ValuePlace>;

static Places places_of_values(const Capture &capture)
{
    Places places;
    for_each_byte_run(capture, [&](const recording::ByteRun &run) {
        for (const recording::ShownValue &shown : run.values) {
            places.emplace(shown.path, ValuePlace{run.offset, run.size});
        }
    });
    return places;
}

static bool has_bytes(const Places &places, const recording::LoggedValue &value)
{
    const auto [begin, end] = places.equal_range(value.path);
    return std::any_of(begin, end, [&](const auto &place) {
        return place.second.offset == value.place->offset && place.second.size >= value.printed->source.width;
    });
}

std::string fault_of_bytes(const Capture &capture)
{
    const Recorded recorded(capture);
    const Places places = places_of_values(capture);
    for (const recording::LoggedValue &value : recorded.log.values()) {
        if (!value.place || !value.printed || value.printed->source.is_said) {
            continue;
        }
        const recording::Source &source = value.printed->source;
        if (!has_bytes(places, value)) {
            return value.path + " is at no bytes";
        }
        const auto received = std::span(capture.show_data).subspan(value.place->offset, source.width);
        const auto number = number_in(received, *value.place, capture.byte_order->order);
        if (source.has_number && !source.is_part && number && low_bytes(source.number, source.width) != *number) {
            return value.path + " has another number than its bytes: " + std::to_string(*number);
        }
    }
    return {};
}

std::string fault_of_line(const Capture &capture, const Rendering &rendering, const recording::PublishedSchema &schema)
{
    return schema.violation(recording::parse_line(line_of(capture, rendering)));
}

} // namespace l2fib
