#include "client/replay.h"

#include "client/discarded_output.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <tuple>
#include <utility>

namespace l2fib
{

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

    void hand_over(Parcel &parcel)
    {
        parcel.put(counts_.size());
        for (const auto &[row, count] : counts_) {
            const auto &[object, view, status] = row;
            parcel.put(object);
            parcel.put(view);
            parcel.put(status);
            parcel.put(count);
        }
        counts_.clear();
    }

    void take_over(OpenedParcel &parcel)
    {
        for (auto rows = parcel.taken<std::size_t>(); rows != 0; --rows) {
            const auto object = parcel.taken<std::string>();
            const auto view = parcel.taken<std::string>();
            const auto status = parcel.taken<std::uint32_t>();
            counts_[{object, view, status}] += parcel.taken<std::size_t>();
        }
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

/// Shows captures, one after the other.
class Replay : public BlockWork
{
public:
    explicit Replay(const ReplayOptions &options)
        : options_(options), files_(
                                 options.files, options.selection,
                                 [this](Capture &capture, const CapturePlace &place) { return show(capture, place); },
                                 [this] { renderer_.flush(); }),
          renderer_(options.rendering)
    {
    }

    ExitStatus run();

    std::size_t run(const Block &block, LineCounter &counter) override { return files_.run(block, counter); }
    void flush() override { renderer_.flush(); }
    void hand_over(Parcel &parcel) override;
    void take_over(OpenedParcel &parcel) override;
    [[nodiscard]] const char *separator() const override { return has_headings() ? "\n" : ""; }
    [[nodiscard]] bool has_text() const override { return !is_first_; }

private:
    bool show(Capture &capture, const CapturePlace &place);
    std::uint32_t status_of(const Capture &capture);
    void print_heading(const Capture &capture, const CapturePlace &place);

    [[nodiscard]] bool has_headings() const { return options_.heading && !options_.rendering.json; }
    void note(ExitStatus status) { exit_status_ = std::max(exit_status_, status); }

    const ReplayOptions &options_;
    CaptureFiles files_;
    Renderer renderer_;
    Capture tried_; ///< keeps its memory
    Tally tally_;
    bool is_first_ = true;
    ExitStatus exit_status_ = shown;
};

/// Shows a capture to nobody. A view converts its show data, so it is a copy that is shown.
std::uint32_t Replay::status_of(const Capture &capture)
{
    tried_ = capture;
    const DiscardedOutput discarded;
    return tried_.show();
}

bool Replay::show(Capture &capture, const CapturePlace &place)
{
    const auto &failed = options_.selection.failed;
    const std::uint32_t tried = options_.count || failed ? status_of(capture) : 0;
    if (failed && *failed != (tried != 0)) {
        return false;
    }
    if (options_.count) {
        tally_.add(capture, tried);
        note(tried == 0 ? shown : view_failed);
        return true;
    }
    print_heading(capture, place);
    const Origin origin{place.file, options_.heading ? place.line() : 0};
    const std::uint32_t status = renderer_.show(capture, options_.heading ? &origin : nullptr);
    if (status != 0 && options_.rendering.json) {
        note(view_failed); // the line says how
    } else if (status != 0) {
        note(report_status(status, place.text() + ": "));
    }
    return true;
}

void Replay::print_heading(const Capture &capture, const CapturePlace &place)
{
    if (!has_headings()) {
        return;
    }
    const View *view = capture.shown_view();
    const std::string how = view == nullptr ? "" : std::string(" ") + capture.direction->name + " " + view->name;
    std::printf("%s== %s: %s%s\n", is_first_ ? "" : "\n", place.text().c_str(), capture.object->name, how.c_str());
    is_first_ = false;
}

void Replay::hand_over(Parcel &parcel)
{
    files_.hand_over(parcel);
    tally_.hand_over(parcel);
    parcel.put(std::exchange(exit_status_, shown));
    is_first_ = true; // of the next block
}

void Replay::take_over(OpenedParcel &parcel)
{
    files_.take_over(parcel);
    tally_.take_over(parcel);
    note(parcel.taken<ExitStatus>());
}

ExitStatus Replay::run()
{
    files_.read(options_.jobs, *this, [this] { return std::make_unique<Replay>(options_); });
    note(files_.status());
    if (options_.count) {
        options_.rendering.json ? tally_.write(renderer_.json()) : tally_.print();
    }
    renderer_.flush();
    files_.report_no_match();
    return output_arrived() ? exit_status_ : unusable;
}

ExitStatus replay(const ReplayOptions &options)
{
    return Replay(options).run();
}

} // namespace l2fib
