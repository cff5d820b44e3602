#include "client/capture_files.h"

#include "client/show_data_file.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

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

CaptureFiles::CaptureFiles(const std::vector<std::string> &files, const Selection &selection, Take take,
                           std::function<void()> flush)
    : files_(files.empty() ? std::vector<std::string>{"-"} : files), selection_(selection), take_(std::move(take)),
      flush_(std::move(flush))
{
}

void CaptureFiles::report(const std::string &what)
{
    flush_();
    counts_.status = std::max(counts_.status, complain(what));
}

void CaptureFiles::read()
{
    CaptureBlocks blocks(files_);
    SharedBlocks memory(1);
    LineCounter counter(1);
    while (!is_output_lost() && blocks.fill(memory[0])) {
        memory[0].fetch();
        step_progress(run(memory[0], counter));
    }
    clear_progress();
}

void CaptureFiles::read(unsigned jobs, BlockWork &work, const MakeWork &twin)
{
    CaptureBlocks blocks(files_);
    do_blocks([&blocks](Block &block) { return blocks.fill(block); }, jobs, work, twin);
    clear_progress();
}

std::size_t CaptureFiles::run(const Block &block, LineCounter &counter)
{
    std::size_t lines = 0;
    for (const Block::Part &part : block.used_parts()) {
        lines += run(part, block.text_of(part), counter);
    }
    return lines;
}

std::size_t CaptureFiles::run(const Block::Part &part, std::string_view text, LineCounter &counter)
{
    const CapturePlace place{files_[part.file], counter};
    std::size_t lines = 0;
    if (part.line != 0) {
        counter.begin(part.line);
    }
    switch (part.kind) {
    case Block::Part::Kind::lines:
        for_each_line(text, [&](std::string_view line) {
            read_line(line, place);
            counter.pass();
            ++lines;
            return !is_output_lost();
        });
        break;
    case Block::Part::Kind::too_long:
        report(place.text() + ": " + line_too_long);
        counter.pass();
        ++lines;
        break;
    case Block::Part::Kind::failure: report(place.file + ": " + std::string(text)); break;
    case Block::Part::Kind::message: report(std::string(text)); break;
    }
    return lines;
}

void CaptureFiles::read_line(std::string_view line, const CapturePlace &place)
{
    if (is_blank(line)) {
        return;
    }
    CaptureLine &parsed = read_capture(reader_, line);
    if (!parsed.error.empty()) {
        report(place.text() + ": " + parsed.error);
        return;
    }
    ++counts_.captures;
    if (selection_.fits(parsed.capture) && take_(parsed.capture, place)) {
        ++counts_.wanted;
    }
}

void CaptureFiles::hand_over(Parcel &parcel)
{
    parcel.put(std::exchange(counts_, {}));
}

void CaptureFiles::take_over(OpenedParcel &parcel)
{
    const auto counts = parcel.taken<Counts>();
    counts_.captures += counts.captures;
    counts_.wanted += counts.wanted;
    counts_.status = std::max(counts_.status, counts.status);
}

/// An empty screen may be what was asked for, so it is no failure; it may also be a slip in a number.
void CaptureFiles::report_no_match() const
{
    const std::string choices = selection_.text();
    const bool is_explained = counts_.captures == 0 && counts_.status == unusable;
    if (counts_.wanted == 0 && !choices.empty() && !is_explained && !is_output_lost()) {
        complain("no capture fits " + choices + " (of " + std::to_string(counts_.captures) + ")");
    }
}

} // namespace l2fib
