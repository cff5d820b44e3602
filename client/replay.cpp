#include "client/replay.h"

#include "client/capture_reader.h"
#include "client/discarded_output.h"
#include "client/input.h"
#include "client/progress.h"
#include "client/show_data_file.h"

#include <algorithm>
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
    explicit Replay(const ReplayOptions &options) : options_(options) {}

    void file(const std::string &path);

    ExitStatus finish()
    {
        progress_.clear();
        if (options_.count) {
            tally_.print();
        }
        return output_arrived() ? exit_status_ : unusable;
    }

private:
    void read_line(const Input::Line &line, const Place &place);
    void show(Capture &capture, const Place &place);
    std::uint32_t status_of(const Capture &capture);
    void print_heading(const Capture &capture, const Place &place);

    void note(ExitStatus status) { exit_status_ = std::max(exit_status_, status); }
    void report(const std::string &what) // of a file
    {
        progress_.clear();
        note(complain(what));
    }

    const ReplayOptions &options_;
    Progress progress_;
    CaptureReader reader_;
    Capture tried_; ///< keeps its memory
    Tally tally_;
    bool is_first_ = true;
    ExitStatus exit_status_ = shown;
};

void Replay::file(const std::string &path)
{
    constexpr std::size_t longest_line = 2 * longest_show_data + (std::size_t{64} << 10U);
    Input input(path);
    for (std::size_t number = 1; std::ferror(stdout) == 0; ++number) {
        const auto line = input.next_line(longest_line);
        if (!line) {
            break;
        }
        read_line(*line, {path, number});
        progress_.step();
    }
    if (!input.error().empty()) {
        report(input.error());
    }
}

void Replay::read_line(const Input::Line &line, const Place &place)
{
    if (line.is_too_long) {
        report(place.text() + ": line too long");
        return;
    }
    if (line.text.find_first_not_of(" \t\r") == std::string_view::npos) {
        return;
    }
    CaptureLine &parsed = reader_.read(line.text);
    if (!parsed.error.empty()) {
        report(place.text() + ": " + parsed.error);
    } else if (options_.selection.fits(parsed.capture)) {
        show(parsed.capture, place);
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
    if (options_.count || failed) {
        const std::uint32_t status = status_of(capture);
        if (failed && *failed != (status != 0)) {
            return;
        }
        if (options_.count) {
            tally_.add(capture, status);
            note(status == 0 ? shown : view_failed);
            return;
        }
    }
    print_heading(capture, place);
    const std::uint32_t status = capture.show();
    if (status != 0) {
        progress_.clear();
        note(report_status(status, place.text() + ": "));
    }
}

void Replay::print_heading(const Capture &capture, const Place &place)
{
    if (!options_.heading) {
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
