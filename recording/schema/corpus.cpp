#include "recording/schema/corpus.h"

#include "client/capture_line.h"
#include "examples/sample_lines.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <utility>

namespace l2fib
{

std::vector<Capture> samples()
{
    std::vector<Capture> samples;
    for (const SampleCapture &sample : sample_captures) {
        samples.push_back(parse_capture(sample_line(sample)).capture);
    }
    return samples;
}

void use_as_everything(const Capture &capture, const UseCapture &use)
{
    Capture other = capture;
    for (const Object &object : objects()) {
        other.object = &object;
        for (const View &view : views()) {
            other.view = &view;
            for (const Direction &direction : directions()) {
                other.direction = &direction;
                use(other);
            }
        }
    }
}

void use_prefixes(const Capture &capture, const UseCapture &use)
{
    Capture prefix = capture;
    for (std::size_t size = 0; size <= capture.show_data.size(); ++size) {
        const auto end = capture.show_data.begin() + static_cast<std::ptrdiff_t>(size);
        prefix.show_data.assign(capture.show_data.begin(), end);
        use(prefix);
    }
}

using Random = std::mt19937;

/// Sets a field to a number that may decide what is shown: a low one, one with few bits, or any.
static void change(std::span<std::uint8_t> field, Random &random)
{
    const auto any_byte = [&random] { return static_cast<std::uint8_t>(random()); };
    std::uint8_t &least = random() % 2 == 0 ? field.back() : field.front();
    switch (random() % 5) {
    case 0:
    case 1:
        std::fill(field.begin(), field.end(), std::uint8_t{0});
        least = static_cast<std::uint8_t>(random() % 2 == 0 ? any_byte() % 12U : 1U << random() % 8);
        break;
    case 2: field[random() % field.size()] ^= static_cast<std::uint8_t>(1U << random() % 8); break;
    case 3: std::fill(field.begin(), field.end(), std::uint8_t{0xff}); break;
    default: std::generate(field.begin(), field.end(), any_byte); break;
    }
}

void for_each_byte_run(const Capture &capture, const std::function<void(const recording::ByteRun &run)> &take)
{
    recording::BytesRecorder bytes;
    std::vector<std::uint8_t> converted = capture.show_data;
    bytes.begin(converted);
    text_of_recording(capture, converted, bytes);
    bytes.for_each_run(take);
}

/// A part of the show data.
struct Part {
    std::size_t offset;
    std::size_t size;
};

static std::vector<Part> fields_of(const Capture &capture)
{
    std::vector<Part> fields;
    for_each_byte_run(capture, [&](const recording::ByteRun &run) { fields.push_back({run.offset, run.size}); });
    return fields;
}

static void change(Capture &capture, const std::vector<Part> &fields, Random &random)
{
    const bool many = random() % 4 == 0;
    for (auto changes = many ? fields.size() / 4 : 1 + random() % 6; changes != 0 && !fields.empty(); --changes) {
        const Part &field = fields[random() % fields.size()];
        change(std::span(capture.show_data).subspan(field.offset, field.size), random);
    }
}

void use_changed(const Capture &capture, unsigned times, const UseCapture &use)
{
    Random random(times);
    const auto fields = fields_of(capture);
    for (unsigned time = 0; time < times; ++time) {
        Capture changed = capture;
        change(changed, fields, random);
        use(changed);
        change(changed, fields_of(changed), random); // the first changes may have the view come to other fields
        use(changed);
    }
}

void use_on_other_routers(const Capture &capture, const UseCapture &use)
{
    Capture other = capture;
    other.router.card_type = 0;
    use(other);
    other.router = capture.router;
    constexpr std::size_t ifhandle = 14;
    if (capture.show_data.size() >= ifhandle + 4) {
        const std::uint8_t *bytes = &capture.show_data[ifhandle];
        other.router.virtual_interfaces = {std::uint32_t{bytes[0]} << 24U | std::uint32_t{bytes[1]} << 16U |
                                           std::uint32_t{bytes[2]} << 8U | std::uint32_t{bytes[3]}};
        use(other);
    }
}

std::string text_on(std::FILE *&stream, const std::function<void()> &call)
{
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *const usual = std::exchange(stream, open_memstream(&text, &size));
    call();
    std::fclose(std::exchange(stream, usual));
    std::string result(text, size);
    std::free(text);
    return result;
}

std::string line_of(const Capture &capture, const Rendering &rendering, const Origin *origin)
{
    Capture shown = capture;
    std::string line = text_on(stdout, [&] { Renderer(rendering).show(shown, origin); });
    line.pop_back();
    return line;
}

std::string text_of_recording(const Capture &capture, std::span<std::uint8_t> converted, recording::Recorder &recorder)
{
    return text_on(recording::text_stream, [&] {
        const recording::Recording recording(recorder);
        capture.show(converted.empty() ? std::span<std::uint8_t>{} : converted, recording_library);
    });
}

} // namespace l2fib
