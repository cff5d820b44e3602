#include "recording/schema/lines.h"

#include "client/replay.h"
#include "examples/captures.h"
#include "recording/schema/corpus.h"
#include "recording/schema/value_log.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace l2fib
{

using nlohmann::json;

Lines::Lines(const std::string &examples)
{
    constexpr unsigned often = 800;
    constexpr unsigned seldom = 80; // of the long lines, which differ little
    const UseCapture add_one = [this](const Capture &capture) { add(capture); };
    const UseCapture add_with_fields = [this](const Capture &capture) {
        add(capture);
        add_identities(view_of(capture), capture);
    };
    for (const Object &object : l2fib::objects()) {
        for (const View &view : l2fib::views()) {
            if (object.has_views() || &view == l2fib::views().data()) {
                const bool is_usual = !object.has_views() || object.default_view == &view;
                views_.push_back({object.name,
                                  object.has_views() ? view.name : "",
                                  std::string(object.name) + (is_usual ? "" : std::string(" ") + view.name),
                                  {},
                                  {}});
            }
        }
    }
    for (const Capture &sample : samples()) {
        use_as_everything(sample, add_with_fields);
        use_as_everything(sample, [this](const Capture &capture) { add_bytes(capture); });
        use_on_other_routers(sample, add_one);
        use_prefixes(sample, add_one);
        Capture other_side = sample;
        for (const Direction &direction : directions()) {
            other_side.direction = &direction;
            use_changed(other_side, sample.object->name == std::string("resources") ? seldom : often, add_with_fields);
        }
    }
    add_replayed(examples);
}

ViewLines &Lines::view_of(const Capture &capture)
{
    const char *view = capture.object->has_views() ? capture.shown_view()->name : "";
    return *std::find_if(views_.begin(), views_.end(), [&](const ViewLines &lines) {
        return lines.object == capture.object->name && lines.view == view;
    });
}

/// Adds a line, less what its parts hold.
void Lines::add_outline(recording::Members &kind, json line)
{
    for (const char *part : {"rp", "hw"}) {
        if (line.contains(part)) {
            line[part] = json::object();
        }
    }
    any_.add(line);
    kind.add(line);
}

void Lines::add(const Capture &capture)
{
    ViewLines &view = view_of(capture);
    const json line = json::parse(line_of(capture));
    view.members.add(line);
    add_outline(objects_, line);
}

/// "hw.nps[].xid" of "hw.nps[1].xid".
static std::string without_indices(const std::string &path)
{
    std::string plain;
    std::copy_if(path.begin(), path.end(), std::back_inserter(plain), [is_index = false](char c) mutable {
        is_index = c == '[' || (is_index && c != ']');
        return c == '[' || !is_index;
    });
    return plain;
}

void Lines::add_identities(ViewLines &view, const Capture &capture)
{
    recording::ValueLog log;
    std::vector<std::uint8_t> converted = capture.show_data;
    log.begin(converted);
    text_of_recording(capture, converted, log);
    for (const recording::LoggedValue &value : log.values()) {
        view.identities[without_indices(value.path)].insert(value.identity());
    }
}

void Lines::add_bytes(const Capture &capture)
{
    const json line = json::parse(line_of(capture, {.json = true, .bytes = true}));
    view_of(capture).members.add(line);
    add_outline(bytes_, line);
}

void Lines::add_replayed(const std::string &examples)
{
    ReplayOptions options;
    options.rendering.json = true;
    for (const SampleCapture &sample : sample_captures) {
        options.files.push_back(examples + "/" + sample.name + ".jsonl");
    }
    // With the origin of each line.
    std::istringstream lines(text_on(stdout, [&] {
        ReplayOptions with_origin = options;
        with_origin.heading = true;
        replay(with_origin);
    }));
    for (std::string line; std::getline(lines, line);) {
        add_outline(objects_, json::parse(line));
    }
    options.count = true;
    for (const auto &files : {options.files, {"/dev/null"}}) {
        options.files = files;
        add_outline(counts_, json::parse(text_on(stdout, [&] { replay(options); })));
    }
}

} // namespace l2fib
