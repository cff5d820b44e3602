#include "client/rendering.h"

#include "client/hex_digits.h"
#include "recording/views.h"

#include <algorithm>

namespace l2fib
{

static constexpr Library recording_library{recording_print_internal, recording_platform_summary_hw_print_internal,
                                           recording_platform_msg_counter_hw_print_internal,
                                           recording_trident_print_summary};

std::uint32_t Renderer::show(Capture &capture, const Origin *origin)
{
    if (rendering_.bytes) {
        return show_bytes(capture, origin);
    }
    return rendering_.json ? show_json(capture, origin) : capture.show();
}

std::uint32_t Renderer::record(Capture &capture, recording::Recorder &recorder)
{
    const recording::Recording recording(recorder);
    const std::span<std::uint8_t> data = capture.show_data;
    return capture.show(data.empty() ? std::span<std::uint8_t>{} : data, recording_library);
}

/// What every line of JSON begins with.
void Renderer::open_line(const Capture &capture, const Origin *origin)
{
    constexpr std::uint64_t format = 1;
    json_.open_line();
    json_.member("format", format);
    if (origin != nullptr) {
        json_.member("file", origin->file);
        json_.member("line", std::uint64_t{origin->line});
    }
    json_.member("object", std::string_view(capture.object->name));
    json_.member("node", std::uint64_t{capture.node});
    if (capture.object->has_views()) {
        json_.member("direction", std::string_view(capture.direction->name));
        json_.member("view", std::string_view(capture.shown_view()->name));
    }
}

std::uint32_t Renderer::show_json(Capture &capture, const Origin *origin)
{
    received_ = capture.show_data;
    open_line(capture, origin);
    json_recorder_.begin(capture.show_data, received_);
    const std::uint32_t status = record(capture, json_recorder_);
    json_recorder_.end();
    json_.member("status", std::uint64_t{status});
    json_.close_line();
    return status;
}

static bool is_zero(std::span<const std::uint8_t> bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

std::uint32_t Renderer::show_bytes(Capture &capture, const Origin *origin)
{
    received_ = capture.show_data;
    bytes_recorder_.begin(capture.show_data);
    const std::uint32_t status = record(capture, bytes_recorder_);
    const std::vector<recording::ByteRun> runs = bytes_recorder_.runs();
    if (!rendering_.json) {
        print_runs(runs);
        return status;
    }
    open_line(capture, origin);
    write_runs(runs);
    json_.member("status", std::uint64_t{status});
    json_.close_line();
    return status;
}

/// How much of the show data no line shows.
struct Unshown {
    explicit Unshown(std::span<const recording::ByteRun> runs, std::span<const std::uint8_t> bytes)
    {
        for (const recording::ByteRun &run : runs) {
            if (run.values.empty()) {
                const auto part = bytes.subspan(run.offset, run.size);
                count += run.size;
                nonzero += part.size() - static_cast<std::size_t>(std::count(part.begin(), part.end(), 0));
            }
        }
    }

    std::size_t count = 0;
    std::size_t nonzero = 0;
};

void Renderer::write_runs(std::span<const recording::ByteRun> runs)
{
    for (const recording::ByteRun &run : runs) {
        const auto bytes = std::span(received_).subspan(run.offset, run.size);
        json_.open_element("bytes");
        json_.member("offset", std::uint64_t{run.offset});
        json_.member("width", std::uint64_t{run.size});
        json_.member("hex", std::string_view(hex_of_bytes({bytes.begin(), bytes.end()})));
        if (!run.field.empty()) {
            json_.member("field", std::string_view(run.field));
        }
        for (const recording::ShownValue &value : run.values) {
            json_.open_element("values");
            json_.member("path", std::string_view(value.path));
            json_.member("text", std::string_view(value.text));
            json_.close_object();
        }
        json_.close_object();
    }
    const Unshown unshown(runs, received_);
    json_.member("size", std::uint64_t{received_.size()});
    json_.member("not_shown", std::uint64_t{unshown.count});
    json_.member("not_shown_nonzero", std::uint64_t{unshown.nonzero});
}

/// Bytes in pairs of digits; of many, the first ones, and how many there are.
static std::string digits_of(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t most = 8;
    std::string text;
    for (const std::uint8_t byte : bytes.first(std::min(bytes.size(), most))) {
        text += text.empty() ? "" : " ";
        text += hex_of_bytes({byte});
    }
    return bytes.size() > most ? text + " .. " + std::to_string(bytes.size()) + " bytes" : text;
}

/// A line for each run: where it is, its bytes, what it is and what the screen shows of it.
void Renderer::print_runs(std::span<const recording::ByteRun> runs)
{
    const char *const faint = rendering_.colored ? "\x1b[2m" : "";
    const char *const alarm = rendering_.colored ? "\x1b[33m" : "";
    const char *const plain = rendering_.colored ? "\x1b[0m" : "";
    for (const recording::ByteRun &run : runs) {
        const auto bytes = std::span(received_).subspan(run.offset, run.size);
        const bool is_shown = !run.values.empty();
        const bool is_odd = !is_shown && !is_zero(bytes);
        std::printf("%s0x%05zx  %-38s %c %s",
                    is_shown ? ""
                    : is_odd ? alarm
                             : faint,
                    run.offset, digits_of(bytes).c_str(), is_odd ? '!' : ' ',
                    run.field.empty() ? "?" : run.field.c_str());
        for (const recording::ShownValue &value : run.values) {
            std::printf("\n%*s%s: %s", 51, "", value.path.c_str(), value.text.c_str());
        }
        std::printf("%s\n", is_shown ? "" : plain);
    }
    const Unshown unshown(runs, received_);
    std::printf("No line shows %zu of %zu bytes; %zu of them are not zero.\n", unshown.count, received_.size(),
                unshown.nonzero);
}

} // namespace l2fib
