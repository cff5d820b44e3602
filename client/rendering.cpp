#include "client/rendering.h"

#include "client/byte_table.h"
#include "client/hex_digits.h"
#include "client/screen.h"

#include <optional>

namespace l2fib
{

std::uint32_t Renderer::show(Capture &capture, const Origin *origin)
{
    if (rendering_.bytes) {
        return show_bytes(capture, origin);
    }
    return rendering_.json ? show_json(capture, origin) : capture.show();
}

std::uint32_t record_view(Capture &capture, recording::Recorder &recorder)
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
    const std::uint32_t status = record_view(capture, json_recorder_);
    json_recorder_.end();
    json_.member("status", std::uint64_t{status});
    json_.close_line();
    return status;
}

std::uint32_t Renderer::show_bytes(Capture &capture, const Origin *origin)
{
    received_ = capture.show_data;
    bytes_recorder_.begin(capture.show_data);
    const std::uint32_t status = record_view(capture, bytes_recorder_);
    if (!rendering_.json) {
        const auto own_colors = rendering_.colored ? std::make_optional<UnchangedText>() : std::nullopt;
        print_byte_table(bytes_recorder_, received_, rendering_.colored);
        return status;
    }
    open_line(capture, origin);
    write_runs();
    json_.member("status", std::uint64_t{status});
    json_.close_line();
    return status;
}

void Renderer::write_runs()
{
    NotShown not_shown;
    bytes_recorder_.for_each_run([&](const recording::ByteRun &run) {
        const auto bytes = std::span(received_).subspan(run.offset, run.size);
        not_shown.add(run, bytes);
        json_.open_element("bytes");
        json_.member("offset", std::uint64_t{run.offset});
        json_.member("width", std::uint64_t{run.size});
        json_.member("hex", std::string_view(hex_of_bytes({bytes.begin(), bytes.end()})));
        if (!run.record.empty()) {
            json_.member("field", std::string_view(std::string(run.record) + '.' + run.field));
        }
        for (const recording::ShownValue &value : run.values) {
            json_.open_element("values");
            json_.member("path", std::string_view(value.path));
            json_.member("text", std::string_view(value.text));
            json_.close_object();
        }
        json_.close_object();
    });
    json_.member("size", std::uint64_t{received_.size()});
    json_.member("not_shown", std::uint64_t{not_shown.count});
    json_.member("not_shown_nonzero", std::uint64_t{not_shown.nonzero});
}

} // namespace l2fib
