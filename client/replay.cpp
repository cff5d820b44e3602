#include "client/replay.h"

#include "client/broken_lines.h"
#include "client/capture_reader.h"
#include "client/discarded_output.h"
#include "client/input.h"
#include "client/progress.h"
#include "client/show_data_file.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <tuple>

namespace l2fib
{

bool Selection::fits(const Capture &capture) const
{
    const auto fits = [](const auto &choice, const auto &actual) { return !choice || *choice == actual; };
    const bool is_wanted =
        objects.empty() || std::find(objects.begin(), objects.end(), capture.object->name) != objects.end();
    return is_wanted && fits(node, capture.node) &&
           fits(direction, capture.object->has_views() ? capture.direction->name : "") &&
           (!xid || capture.object->xid(capture.show_data) == xid);
}

std::string Selection::text() const
{
    std::string options;
    const auto add = [&options](const char *option, const std::string &argument) {
        options.append(options.empty() ? "" : " ").append(option).append(" ").append(argument);
    };
    for (const std::string &object : objects) {
        add("--object", object);
    }
    if (node) {
        add("--node", std::to_string(*node));
    }
    if (direction) {
        add("--direction", *direction);
    }
    if (xid) {
        std::array<char, sizeof "0xffffffff"> number{}; // as on the screens
        std::snprintf(number.data(), number.size(), "0x%08x", *xid);
        add("--xid", number.data());
    }
    if (failed) {
        add("--status", *failed ? "failed" : "ok");
    }
    return options;
}

/// How many captures of each object and view came to each status.
class Tally
{
public:
    void add(const Capture &capture, std::uint32_t status)
    {
        const View *view = capture.shown_view();
        ++counts_[{capture.object->name, view == nullptr ? "-" : view->name, status}];
    }

    void print() const
    {
        std::size_t total = 0;
        std::printf("%-12s %-13s %10s  %s\n", "object", "view", "count", "status");
        for (const auto &[row, count] : counts_) {
            const auto &[object, view, status] = row;
            std::printf("%-12s %-13s %10zu  0x%08x %s\n", object.c_str(), view.c_str(), count, status,
                        text_of_status(status));
            total += count;
        }
        std::printf("%-12s %-13s %10zu\n", "all", "", total);
    }

    /// The same as a line of JSON.
    void write(recording::JsonWriter &json) const
    {
        std::uint64_t total = 0;
        json.open_line();
        json.member("format", std::uint64_t{1});
        for (const auto &[row, count] : counts_) {
            const auto &[object, view, status] = row;
            json.open_element("counts");
            json.member("object", std::string_view(object));
            if (view != "-") {
                json.member("view", std::string_view(view));
            }
            json.member("status", std::uint64_t{status});
            json.member("status_text", std::string_view(text_of_status(status)));
            json.member("count", std::uint64_t{count});
            json.close_object();
            total += count;
        }
        json.member("all", total);
        json.close_line();
    }

private:
    std::map<std::tuple<std::string, std::string, std::uint32_t>, std::size_t> counts_;
};

/// Where a capture is from.
struct Place {
    const std::string &file;
    std::size_t line;

    [[nodiscard]] std::string text() const { return file + ":" + std::to_string(line); }
};

/// A run over files. What is wrong with a line is reported, and the rest goes on.
class Replay
{
public:
    explicit Replay(const ReplayOptions &options) : options_(options), renderer_(options.rendering) {}

    void file(const std::string &path);

    ExitStatus finish()
    {
        progress_.clear();
        if (options_.count) {
            options_.rendering.json ? tally_.write(renderer_.json()) : tally_.print();
        }
        renderer_.flush();
        report_no_match();
        return output_arrived() ? exit_status_ : unusable;
    }

private:
    void read_line(const Input::Line &line, const Place &place);
    void refuse(const Input::Line &line, const Place &place, const std::string &why);
    void note_capture();
    void report_no_match() const;
    void show(Capture &capture, const Place &place);
    std::uint32_t status_of(const Capture &capture);
    void print_heading(const Capture &capture, const Place &place);

    void note(ExitStatus status) { exit_status_ = std::max(exit_status_, status); }
    void report(const std::string &what) // of a file
    {
        progress_.clear();
        note(complain(what));
    }
    void report(const std::vector<std::string> &messages)
    {
        for (const std::string &message : messages) {
            report(message);
        }
    }

    const ReplayOptions &options_;
    Progress progress_;
    Renderer renderer_;
    CaptureReader reader_;
    std::optional<BrokenLines> no_captures_; ///< while the file has none
    Capture tried_;                          ///< keeps its memory
    Tally tally_;
    std::size_t captures_ = 0;
    std::size_t fitting_ = 0;
    bool is_first_ = true;
    ExitStatus exit_status_ = shown;
};

void Replay::file(const std::string &path)
{
    constexpr std::size_t longest_line = 2 * longest_show_data + (std::size_t{64} << 10U);
    Input input(path);
    no_captures_.emplace();
    for (std::size_t number = 1; std::ferror(stdout) == 0; ++number) {
        const auto line = input.next_line(longest_line);
        if (!line) {
            break;
        }
        read_line(*line, {path, number});
        progress_.step();
        if (no_captures_ && no_captures_->are_enough()) {
            break;
        }
    }
    if (no_captures_) {
        report(no_captures_->verdict(path));
    }
    if (!input.error().empty()) {
        report(input.error());
    }
}

void Replay::read_line(const Input::Line &line, const Place &place)
{
    if (line.is_too_long) {
        refuse(line, place, "line too long");
        return;
    }
    if (line.text.find_first_not_of(" \t\r") == std::string_view::npos) {
        return;
    }
    CaptureLine &parsed = reader_.read(line.text);
    if (!parsed.error.empty()) {
        refuse(line, place, parsed.error);
        return;
    }
    note_capture();
    if (options_.selection.fits(parsed.capture)) {
        show(parsed.capture, place);
    }
}

void Replay::refuse(const Input::Line &line, const Place &place, const std::string &why)
{
    const std::string message = place.text() + ": " + why;
    if (no_captures_) {
        no_captures_->add(line.text, message);
    } else {
        report(message);
    }
}

/// The broken lines before the file's first capture are no more than that.
void Replay::note_capture()
{
    if (no_captures_) {
        report(no_captures_->messages());
        no_captures_.reset();
    }
    ++captures_;
}

/// An empty screen may be what was asked for, so it is no failure; it may also be a slip in a number.
void Replay::report_no_match() const
{
    const std::string choices = options_.selection.text();
    const bool is_explained = captures_ == 0 && exit_status_ == unusable;
    if (fitting_ == 0 && !choices.empty() && !is_explained && std::ferror(stdout) == 0) {
        complain("no capture fits " + choices + " (of " + std::to_string(captures_) + ")");
    }
}

/// Shows a capture to nobody. A view converts its show data, so it is a copy that is shown.
std::uint32_t Replay::status_of(const Capture &capture)
{
    tried_ = capture;
    const DiscardedOutput discarded;
    return tried_.show();
}

void Replay::show(Capture &capture, const Place &place)
{
    const auto &failed = options_.selection.failed;
    const std::uint32_t tried = options_.count || failed ? status_of(capture) : 0;
    if (failed && *failed != (tried != 0)) {
        return;
    }
    ++fitting_;
    if (options_.count) {
        tally_.add(capture, tried);
        note(tried == 0 ? shown : view_failed);
        return;
    }
    print_heading(capture, place);
    const Origin origin{place.file, place.line};
    const std::uint32_t status = renderer_.show(capture, options_.heading ? &origin : nullptr);
    if (status != 0 && options_.rendering.json) {
        note(view_failed); // the line says how
    } else if (status != 0) {
        progress_.clear();
        note(report_status(status, place.text() + ": "));
    }
}

void Replay::print_heading(const Capture &capture, const Place &place)
{
    if (!options_.heading || options_.rendering.json) {
        return;
    }
    const View *view = capture.shown_view();
    const std::string how = view == nullptr ? "" : std::string(" ") + capture.direction->name + " " + view->name;
    std::printf("%s== %s: %s%s\n", is_first_ ? "" : "\n", place.text().c_str(), capture.object->name, how.c_str());
    is_first_ = false;
}

ExitStatus replay(const ReplayOptions &options)
{
    Replay run(options);
    if (options.files.empty()) {
        run.file("-");
    }
    for (const std::string &path : options.files) {
        run.file(path);
    }
    return run.finish();
}

} // namespace l2fib
