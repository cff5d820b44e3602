// Writes the inputs that the targets start from, made of the sample captures: write-seeds DIRECTORY
#include "client/capture_writer.h"
#include "client/hex_digits.h"
#include "common/show_data.h"
#include "examples/sample_lines.h"
#include "examples/show_data_builder.h"
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "rp/ac_context.h"
#include "rp/names.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace l2fib
{

class SeedWriter
{
public:
    explicit SeedWriter(std::filesystem::path directory) : directory_(std::move(directory)) {}

    void write(const char *target, const std::string &name, std::string_view seed)
    {
        std::filesystem::create_directories(directory_ / target);
        std::ofstream file(directory_ / target / name, std::ios::binary);
        file << seed;
        all_written_ = all_written_ && file.flush();
    }
    void write(const char *target, const std::string &name, const Call &call,
               const std::vector<std::uint8_t> &show_data)
    {
        std::string seed(reinterpret_cast<const char *>(&call), sizeof call);
        seed.append(show_data.begin(), show_data.end());
        write(target, name, seed);
    }

    [[nodiscard]] bool all_written() const { return all_written_; }

private:
    std::filesystem::path directory_;
    bool all_written_ = true;
};

static Call call_for(const SampleCapture &sample)
{
    constexpr std::uint32_t supported_card = 0x1e1000;
    constexpr std::uint64_t uptime = 1'000'000;
    Call call{};
    set(call.objtype, row_named(objects(), sample.object)->objtype);
    set(call.direction, row_named(directions(), sample.direction)->number);
    set(call.view_flags, row_named(views(), sample.view)->flags);
    set(call.card_type, supported_card);
    set(call.monotonic_seconds, uptime);
    return call;
}

/// The function that shows a summary; none for another sample.
static std::optional<SummaryFunction> summary_function(std::string_view object)
{
    constexpr std::pair<std::string_view, SummaryFunction> functions[] = {{"summary", state_summary},
                                                                          {"counters", event_statistics},
                                                                          {"hal-summary", hal_summary},
                                                                          {"resources", resources}};
    for (const auto &[name, function] : functions) {
        if (name == object) {
            return function;
        }
    }
    return std::nullopt;
}

/// A dump as xxd has it, in lines of 16 bytes.
static std::string xxd_of(const std::vector<std::uint8_t> &bytes)
{
    constexpr std::size_t line_size = 16;
    std::string text;
    for (std::size_t begin = 0; begin < bytes.size(); begin += line_size) {
        std::array<char, sizeof "00000000: "> offset{};
        std::snprintf(offset.data(), offset.size(), "%08zx: ", begin);
        const auto *first = bytes.data() + begin;
        const std::vector<std::uint8_t> line(first, first + std::min(line_size, bytes.size() - begin));
        text += offset.data() + hex_of_bytes(line) + "  ";
        for (const std::uint8_t byte : line) {
            text += byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '.';
        }
        text += '\n';
    }
    return text;
}

static void write_seeds(SeedWriter &seeds, const SampleCapture &sample)
{
    const std::string name = sample.name;
    const std::vector<std::uint8_t> show_data = sample.make();
    Call call = call_for(sample);
    if (const auto function = summary_function(sample.object)) {
        set(call.function, *function);
        seeds.write("summaries", name, call, show_data);
    }
    seeds.write("front-door", name, call, show_data);
    seeds.write("recording", name, call, show_data);
    Call long_call = call;
    set(long_call.period, 7);
    set(long_call.function, summary_function(sample.object).value_or(resources));
    seeds.write("text-size", name, long_call, show_data);
    set(call.function, by_view_flags);
    seeds.write("hardware", name, call, show_data);
    if (call.view_flags == L2FIB_VIEW_INCONSISTENT) {
        seeds.write("tlv", name, call, show_data);
    }

    const std::string line = sample_line(sample);
    seeds.write("capture", name, line);
    seeds.write("lines", name, '\x50' + line + '\n' + line.substr(0, 70) + "\n\n" + line);
    constexpr std::size_t enough = 100;
    const auto size = static_cast<std::ptrdiff_t>(std::min(enough, show_data.size()));
    const std::vector<std::uint8_t> dumped(show_data.begin(), show_data.begin() + size);
    seeds.write("dump", name + "-plain", '\xff' + hex_of_bytes(dumped));
    seeds.write("dump", name + "-xxd", '\xff' + xxd_of(dumped));
}

/// What makes the library ask its router: an interface that may be virtual, and stamps without the clocks to go with
/// them.
static void write_seeds_that_ask(SeedWriter &seeds)
{
    Capture unbound;
    unbound.object = row_named(objects(), "ac");
    unbound.show_data = make_local_switch_ac();
    set(ShowData::unchecked<AcShowData>(unbound.show_data.data()).context.to_compose().state, state_unbound);
    unbound.router.virtual_interfaces = {0};
    seeds.write("capture", "unbound-ac", format_capture(unbound));

    Capture stamped;
    stamped.object = row_named(objects(), "bridge");
    stamped.show_data = make_bridge_ingress();
    seeds.write("capture", "without-clocks", format_capture(stamped));
}

} // namespace l2fib

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: write-seeds DIRECTORY\n";
        return 2;
    }
    l2fib::SeedWriter seeds(argv[1]);
    for (const l2fib::SampleCapture &sample : l2fib::sample_captures) {
        l2fib::write_seeds(seeds, sample);
    }
    l2fib::write_seeds_that_ask(seeds);
    seeds.write("dump", "hexdump",
                "\xff"
                "00000000  00 01 02 03 04 05 06 07  08 09 0a 0b 0c 0d 0e 0f  |................|\n"
                "*\n"
                "00000020  41 42 43  |ABC|\n"
                "00000023\n");
    seeds.write("dump", "od",
                "\xff"
                "000000 61 7c 3e 00  >a|>.<\n"
                "*\n"
                "00000c\n");
    seeds.write("capture", "alike",
                R"({"show_data": "00", "object": "mac"})"
                "\n"
                R"({"object": "mac", "show_data": "00"})"
                "\n"
                R"({"object": "mac", "show_data": "01"})"
                "\n"
                R"({"show_data": "01", "object": "mac"})");
    seeds.write("capture", "every-member",
                R"({"object": "ac", "node": 18, "card": "0x1e1003", "direction": "egress", "view": "private", )"
                R"("monotonic_seconds": 12, "wall_seconds": "1763900000", "time_zone": "<+03>-3", )"
                R"("virtual_interfaces": ["0x80000c0", 7], "note": [{"by": null}, true, -1.5], "show_data": "00"})");
    return seeds.all_written() ? 0 : 1;
}
