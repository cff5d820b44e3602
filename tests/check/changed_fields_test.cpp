// What check and diff say of each field of the samples when it is another, shown or not, and of each flag: which rule
// knows it, who is said to stand alone, and what is passed over.
#include "client/check/object_check.h"
#include "client/diff/tree_difference.h"
#include "client/rendering.h"
#include "examples/captures.h"
#include "recording/schema/corpus.h"
#include "tests/support/golden.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <map>
#include <regex>
#include <set>

namespace l2fib
{

static std::string findings_of(Capture capture)
{
    const std::vector<std::uint8_t> received = capture.show_data;
    recording::Tree tree;
    tree.begin(capture.show_data);
    const std::uint32_t status = record_view(capture, tree);
    if (status != 0) {
        return "not shown\n";
    }
    CheckedView view;
    view.begin(tree, received, capture.byte_order->order);
    ObjectCheck check;
    std::string text;
    for (const Finding &finding : check.check(*capture.object, view)) {
        const char *levels[] = {"", "note: ", "may differ: "};
        text += levels[static_cast<int>(finding.level)] + finding.what + ": " + finding.who + '\n';
    }
    return text;
}

/// The lines of a text that another one does not have.
static std::vector<std::string> lines_without(const std::string &text, const std::string &others)
{
    std::istringstream lines(text);
    std::vector<std::string> left;
    for (std::string line; std::getline(lines, line);) {
        if (('\n' + others).find('\n' + line + '\n') == std::string::npos) {
            left.push_back(line);
        }
    }
    return left;
}

TEST(Check, SaysOfEachFieldThatIsAnother)
{
    std::ostringstream text;
    const std::vector<Capture> all = samples();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string before = findings_of(all[i]);
        text << "== " << std::begin(sample_captures)[i].name << '\n' << before;
        for_each_byte_run(all[i], [&](const recording::ByteRun &run) {
            const bool is_word =
                run.field.find("flags") != std::string::npos || run.field.find("features") != std::string::npos;
            const std::size_t bits = 8 * run.size;
            std::map<std::string, std::string> by_finding;
            for (std::size_t bit = is_word ? 0 : bits - 1; bit < bits && !run.record.empty(); ++bit) {
                Capture changed = all[i];
                changed.show_data[run.offset + bit / 8] ^= static_cast<std::uint8_t>(0x80U >> bit % 8);
                for (const std::string &line : lines_without(findings_of(changed), before)) {
                    by_finding[line] += is_word ? ' ' + std::to_string(bit) : "";
                }
            }
            for (const auto &[finding, of_bits] : by_finding) {
                text << "0x" << std::hex << std::setfill('0') << std::setw(4) << run.offset << std::dec << ' '
                     << run.record << '.' << run.field << of_bits << ": " << finding << '\n';
            }
        });
    }
    expect_golden("changed-fields.txt", text.str());
}

/// A view that has been taken down.
struct TakenDown {
    explicit TakenDown(Capture capture) : received(capture.show_data)
    {
        tree.begin(capture.show_data);
        record_view(capture, tree);
    }

    std::vector<std::uint8_t> received;
    recording::Tree tree;
};

TEST(Diff, PassesOverWhatChangesByItself)
{
    std::set<std::string> tried; // the elements of an array are alike
    std::set<std::string> passed_over;
    for (const Capture &sample : samples()) {
        const TakenDown before(sample);
        for_each_byte_run(sample, [&](const recording::ByteRun &run) {
            const std::string name = std::string(run.record) + '.' + run.field;
            const std::string field = std::regex_replace(name, std::regex("[0-9]+"), "");
            if (!tried.insert(field).second) {
                return;
            }
            Capture changed = sample;
            changed.show_data[run.offset + run.size - 1] ^= 0x40;
            const TakenDown after(changed);
            const auto changes_with = [&](bool all) {
                return changes({before.tree, before.received}, {after.tree, after.received}, all).size();
            };
            if (changes_with(false) < changes_with(true)) {
                passed_over.insert(field);
            }
        });
    }
    std::string text;
    for (const std::string &field : passed_over) {
        text += field + '\n';
    }
    expect_golden("changing-fields.txt", text);
}

} // namespace l2fib
