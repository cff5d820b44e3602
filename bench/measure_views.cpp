// How long the views take, for each sample and for a mix of a hundred thousand objects: the library, the same views
// with every piece of text through printf (the baseline), and their text, ready, through one fwrite an object (the
// floor).
#include "client/capture.h"
#include "client/held_output.h"
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

namespace l2fib
{

/// The functions by which objects are shown.
struct Library {
    decltype(&zel_l2fib_print_internal) object;
    decltype(&zel_l2fib_platform_summary_hw_print_internal) summary;
    decltype(&zel_l2fib_platform_msg_counter_hw_print_internal) counters;
    decltype(&zel_l2fib_trident_print_summary) hal_summary;
};

static const Library the_library = {zel_l2fib_print_internal, zel_l2fib_platform_summary_hw_print_internal,
                                    zel_l2fib_platform_msg_counter_hw_print_internal, zel_l2fib_trident_print_summary};

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
    find(library, "zel_l2fib_print_internal", baseline.object);
    find(library, "zel_l2fib_platform_summary_hw_print_internal", baseline.summary);
    find(library, "zel_l2fib_platform_msg_counter_hw_print_internal", baseline.counters);
    find(library, "zel_l2fib_trident_print_summary", baseline.hal_summary);
    return baseline;
}

/// A sample, ready to be shown in each of the three ways.
struct Subject {
    std::string name;
    Capture capture;
    std::string text;
};

/// Shows a subject by a copy of its show data, which the view converts in place.
static void show(const Library &library, const Subject &subject, std::vector<std::uint8_t> &scratch)
{
    const Capture &capture = subject.capture;
    const std::string_view object = capture.object->name;
    if (capture.object->has_views()) {
        library.object(capture.object->objtype, capture.node, capture.direction->number, capture.shown_view()->number,
                       scratch.data(), scratch.size());
    } else if (object == "summary") {
        library.summary(capture.node, 0, scratch.data(), scratch.size());
    } else if (object == "counters") {
        library.counters(capture.node, 0, scratch.data(), scratch.size());
    } else {
        library.hal_summary(0, scratch.data(), scratch.size());
    }
}

/// Standard output, for as long as this lives: /dev/null, or a pipe that somebody empties.
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
    std::function<void(const Subject &subject, std::vector<std::uint8_t> &scratch)> print;
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
    std::vector<std::vector<std::uint8_t>> scratch(batch);
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

/// Prints a line when a subject is measured in every way: the library's, the baseline's and the floor's, to /dev/null
/// and then to a pipe.
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
        ns_.push_back(1e9 / run.counters.at("items_per_second"));
        if (ns_.size() % 3 == 1) {
            bytes_per_second_.push_back(run.counters.at("bytes_per_second"));
        }
        if (ns_.size() < 6) {
            return;
        }
        std::fprintf(out_, "%-18s", run.run_name.function_name.c_str());
        for (std::size_t sink = 0; sink < 2; ++sink) {
            const double *ways = &ns_[3 * sink];
            std::fprintf(out_, "|%9.0f %6.0f %5.1f %5.1f", ways[0], bytes_per_second_[sink] / 1e6, ways[1] / ways[0],
                         ways[0] / ways[2]);
        }
        std::fprintf(out_, "\n");
        std::fflush(out_);
        ns_.clear();
        bytes_per_second_.clear();
    }

private:
    std::FILE *out_;
    std::vector<double> ns_;
    std::vector<double> bytes_per_second_;
};

static std::vector<Subject> make_subjects()
{
    std::vector<Subject> subjects;
    HeldOutput held;
    for (const SampleCapture &sample : sample_captures) {
        Subject subject{sample.name, parse_capture(sample_line(sample)).capture, {}};
        std::vector<std::uint8_t> scratch = subject.capture.show_data;
        subject.text = held.text_of([&] { show(the_library, subject, scratch); });
        subjects.push_back(std::move(subject));
    }
    return subjects;
}

/// Has a subject measured in every way, under one name.
static void add(std::vector<Measurement> &measurements, const std::string &name,
                const std::vector<const Subject *> &subjects, const Library &baseline)
{
    using Bytes = std::vector<std::uint8_t>;
    for (const bool is_pipe : {false, true}) {
        const auto add = [&](const auto &print) { measurements.push_back({name, subjects, print, is_pipe}); };
        add([](const Subject &subject, Bytes &scratch) { show(the_library, subject, scratch); });
        add([&](const Subject &subject, Bytes &scratch) { show(baseline, subject, scratch); });
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
    for (const Measurement &measurement : measurements) {
        benchmark::RegisterBenchmark(measurement.name.c_str(), [&measurement](benchmark::State &state) {
            measure(state, measurement);
        })->UseManualTime();
    }
    TableReporter reporter(fdopen(dup(STDOUT_FILENO), "w"));
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

} // namespace l2fib

int main(int argc, char **argv)
{
    return l2fib::run(argc, argv);
}
