// How long the views take, for each sample and for a mix of a hundred thousand objects: the library, the same views
// with every piece of text through printf (the baseline), and their text, ready, through one fwrite an object (the
// floor); how long the mix takes as JSON; and how long it takes to read captures.
#include "bench/json_forms.h"
#include "bench/text_of.h"
#include "client/capture_blocks.h"
#include "examples/sample_lines.h"
#include "zel_l2fib/show.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>

namespace l2fib
{

template <class Function>
static void find(void *library, const char *name, Function &function)
{
    void *symbol = library == nullptr ? nullptr : dlsym(library, name);
    if (symbol == nullptr) {
        std::fprintf(stderr, "measure-views: %s\n", dlerror());
        std::exit(2);
    }
    function = reinterpret_cast<Function>(symbol);
}

static Library load_baseline()
{
    void *library = dlopen(L2FIB_BASELINE, RTLD_NOW | RTLD_LOCAL);
    Library baseline{};
    find(library, "zel_l2fib_print_internal", baseline.print_object);
    find(library, "zel_l2fib_platform_summary_hw_print_internal", baseline.print_state_summary);
    find(library, "zel_l2fib_platform_msg_counter_hw_print_internal", baseline.print_event_statistics);
    find(library, "zel_l2fib_trident_print_summary", baseline.print_hal_summary);
    return baseline;
}

using Bytes = std::vector<std::uint8_t>;

/// Shows a capture by a copy of its show data, which the view converts in place.
static void show(const Library &library, const Capture &capture, Bytes &scratch)
{
    const View *view = capture.shown_view();
    const ViewArguments arguments{capture.node, capture.direction->number, view == nullptr ? 0 : view->flags};
    capture.object->show(library, *capture.object, arguments, scratch);
}

/// A sample, ready to be shown in each of the three ways.
struct Subject {
    std::string name;
    Capture capture;
    std::string text;
};

/// Sends standard output to /dev/null, or to a pipe that a thread empties, until the end of its life.
class Sink
{
public:
    explicit Sink(bool is_pipe)
    {
        std::fflush(stdout);
        screen_ = dup(STDOUT_FILENO);
        int ends[2] = {-1, open("/dev/null", O_WRONLY)};
        if (is_pipe && pipe(ends) == 0) {
            reader_ = std::thread([input = ends[0]] {
                static char room[1 << 16];
                while (read(input, room, sizeof room) > 0) {
                }
                close(input);
            });
        }
        dup2(ends[1], STDOUT_FILENO);
        close(ends[1]);
    }
    ~Sink()
    {
        std::fflush(stdout);
        dup2(screen_, STDOUT_FILENO);
        close(screen_);
        if (reader_.joinable()) {
            reader_.join();
        }
    }
    Sink(const Sink &) = delete;
    Sink &operator=(const Sink &) = delete;

private:
    int screen_ = -1;
    std::thread reader_;
};

/// What is measured: subjects, how they are printed, and where to.
struct Measurement {
    std::string name;
    std::vector<const Subject *> subjects;
    std::function<void(const Subject &subject, Bytes &scratch)> print;
    bool is_pipe;
};

static double cpu_seconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

static void measure(benchmark::State &state, const Measurement &measurement)
{
    const std::vector<const Subject *> &subjects = measurement.subjects;
    std::size_t size = 0;
    for (const Subject *subject : subjects) {
        size += subject->text.size();
    }
    const Sink sink(measurement.is_pipe);
    constexpr std::size_t batch = 100;
    std::vector<Bytes> scratch(batch);
    while (state.KeepRunning()) {
        double spent = 0;
        for (std::size_t done = 0; done < subjects.size(); done += batch) {
            const std::size_t count = std::min(batch, subjects.size() - done);
            for (std::size_t i = 0; i < count; ++i) {
                const auto &received = subjects[done + i]->capture.show_data;
                scratch[i].assign(received.begin(), received.end());
            }
            const double begin = cpu_seconds();
            for (std::size_t i = 0; i < count; ++i) {
                measurement.print(*subjects[done + i], scratch[i]);
            }
            spent += cpu_seconds() - begin;
        }
        const double begin = cpu_seconds();
        std::fflush(stdout);
        state.SetIterationTime(spent + cpu_seconds() - begin);
    }
    const auto iterations = static_cast<std::int64_t>(state.iterations());
    state.SetBytesProcessed(iterations * static_cast<std::int64_t>(size));
    state.SetItemsProcessed(iterations * static_cast<std::int64_t>(measurement.subjects.size()));
}

/// A file of `count` captures, the samples in turn.
class CaptureFile
{
public:
    explicit CaptureFile(std::size_t count) : file_(std::tmpfile())
    {
        std::string lines;
        for (std::size_t done = 0; done < count; ++done) {
            lines += sample_line(sample_captures[done % std::size(sample_captures)]) + '\n';
        }
        // In one write: what is written in small pieces is kept in small pieces by the system, and read more slowly.
        if (file_ == nullptr || std::fwrite(lines.data(), 1, lines.size(), file_) != lines.size() ||
            std::fflush(file_) != 0) {
            std::perror("measure-views: a temporary file");
            std::exit(2);
        }
    }
    ~CaptureFile() { std::fclose(file_); }
    CaptureFile(const CaptureFile &) = delete;
    CaptureFile &operator=(const CaptureFile &) = delete;

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(fileno(file_)); }

private:
    std::FILE *file_;
};

// Measured in one way only, and compared with the text of the mix.
constexpr const char *streaming = "the mix as JSON";
constexpr const char *dumping = "JSON of trees";
constexpr const char *reading = "reading captures";
constexpr std::size_t captures_read = 10'000;

/// Reads captures as replay does, without showing them.
static void measure_reading(benchmark::State &state, const CaptureFile &file)
{
    const std::vector<std::string> files{file.path()};
    SharedBlocks memory(1);
    while (state.KeepRunning()) {
        const double begin = cpu_seconds();
        CaptureBlocks blocks(files);
        CaptureReader reader;
        while (blocks.fill(memory[0])) {
            memory[0].fetch();
            for (const Block::Part &part : memory[0].used_parts()) {
                for_each_line(memory[0].text_of(part), [&reader](std::string_view line) {
                    benchmark::DoNotOptimize(reader.read(line));
                    return true;
                });
            }
        }
        state.SetIterationTime(cpu_seconds() - begin);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * captures_read));
}

/// Prints a line for each subject when it has been measured in every way: the library, the baseline and the floor, to
/// /dev/null and then to a pipe. What is measured in one way is compared with the last one of them.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    explicit TableReporter(std::FILE *out) : out_(out) {}

    bool ReportContext(const Context & /*context*/) override
    {
        std::fprintf(out_, "%-18s|%28s|%28s\n", "", "to /dev/null         ", "through a pipe        ");
        std::fprintf(out_, "%-18s", "CPU time");
        for (int sink = 0; sink < 2; ++sink) {
            std::fprintf(out_, "|%9s %6s %5s %5s", "ns/object", "MB/s", "base", "floor");
        }
        std::fprintf(out_, "\n");
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        const Run &run = runs.front();
        const double ns = 1e9 / run.counters.at("items_per_second");
        const std::string &name = run.run_name.function_name;
        if (name == streaming || name == dumping || name == reading) {
            std::fprintf(out_, "%-18s|%9.0f, %.1f times as long as to print\n", name.c_str(), ns, ns / printing_ns_);
            return;
        }
        ns_.push_back(ns);
        if (ns_.size() % 3 == 1) {
            bytes_per_second_.push_back(run.counters.at("bytes_per_second"));
        }
        if (ns_.size() < 6) {
            return;
        }
        std::fprintf(out_, "%-18s", name.c_str());
        for (std::size_t sink = 0; sink < 2; ++sink) {
            const double *ways = &ns_[3 * sink];
            std::fprintf(out_, "|%9.0f %6.0f %5.1f %5.1f", ways[0], bytes_per_second_[sink] / 1e6, ways[1] / ways[0],
                         ways[0] / ways[2]);
        }
        std::fprintf(out_, "\n");
        std::fflush(out_);
        printing_ns_ = ns_.front();
        ns_.clear();
        bytes_per_second_.clear();
    }

private:
    std::FILE *out_;
    double printing_ns_ = 0; // to /dev/null, of the last line
    std::vector<double> ns_;
    std::vector<double> bytes_per_second_;
};

static std::vector<Subject> make_subjects()
{
    std::vector<Subject> subjects;
    for (const SampleCapture &sample : sample_captures) {
        Capture capture = parse_capture(sample_line(sample)).capture;
        Bytes scratch = capture.show_data;
        std::string text = text_of([&] { show(router_library, capture, scratch); });
        Subject subject{sample.name, std::move(capture), std::move(text)};
        subjects.push_back(std::move(subject));
    }
    return subjects;
}

/// Adds the measurements of some subjects in every way, under one name.
static void add(std::vector<Measurement> &measurements, const std::string &name,
                const std::vector<const Subject *> &subjects, const Library &baseline)
{
    for (const bool is_pipe : {false, true}) {
        const auto add = [&](const auto &print) { measurements.push_back({name, subjects, print, is_pipe}); };
        add([](const Subject &subject, Bytes &scratch) { show(router_library, subject.capture, scratch); });
        add([&](const Subject &subject, Bytes &scratch) { show(baseline, subject.capture, scratch); });
        add([](const Subject &subject, Bytes &) { std::fwrite(subject.text.data(), 1, subject.text.size(), stdout); });
    }
}

static int run(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const Library baseline = load_baseline();
    const std::vector<Subject> subjects = make_subjects();
    answer_for(subjects.front().capture.router);

    std::vector<Measurement> measurements;
    std::vector<const Subject *> mix;
    for (const Subject &subject : subjects) {
        add(measurements, subject.name, std::vector<const Subject *>(100, &subject), baseline);
    }
    while (mix.size() < 100'000) {
        mix.push_back(&subjects[mix.size() % subjects.size()]);
    }
    add(measurements, "100,000 objects", mix, baseline);

    std::vector<JsonForms> forms;
    for (const Subject &subject : subjects) {
        forms.emplace_back(subject.capture);
    }
    const auto forms_of = [&](const Subject &subject) -> JsonForms & {
        return forms[static_cast<std::size_t>(&subject - subjects.data())];
    };
    Renderer renderer({.json = true});
    const auto stream = [&](const Subject &subject, Bytes &scratch) { forms_of(subject).stream(renderer, scratch); };
    const auto dump = [&](const Subject &subject, Bytes &) { forms_of(subject).dump(); };
    measurements.push_back({streaming, mix, stream, false});
    measurements.push_back({dumping, mix, dump, false});

    for (const Measurement &measurement : measurements) {
        benchmark::RegisterBenchmark(measurement.name.c_str(), [&measurement](benchmark::State &state) {
            measure(state, measurement);
        })->UseManualTime();
    }
    const CaptureFile file(captures_read);
    benchmark::RegisterBenchmark(reading, [&file](benchmark::State &state) {
        measure_reading(state, file);
    })->UseManualTime();
    TableReporter reporter(fdopen(dup(STDOUT_FILENO), "w"));
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

} // namespace l2fib

int main(int argc, char **argv)
{
    return l2fib::run(argc, argv);
}
