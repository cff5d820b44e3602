// What checks find: the planted faults, each once, and nothing in what agrees.
#include "client/capture_line.h"
#include "client/check/across.h"
#include "client/check/checked_object.h"
#include "client/check/hardware_checks.h"
#include "client/check/object_check.h"
#include "client/rendering.h"
#include "examples/planted_faults.h"
#include "examples/sample_lines.h"
#include "recording/schema/corpus.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace l2fib
{

/// The samples whose NPs are compared.
static std::vector<Capture> samples_of_nps()
{
    std::vector<Capture> all = samples();
    std::erase_if(all, [](const Capture &sample) { return !has_like_nps(*sample.object); });
    return all;
}

/// A capture's view, looked at.
class Looked
{
public:
    explicit Looked(const Capture &capture) : received(capture.show_data), capture_(capture)
    {
        tree.begin(capture_.show_data);
        const std::uint32_t status = record_view(capture_, tree);
        unchecked = reason_not_to_check(tree, status);
        view.begin(tree, received, capture.byte_order->order);
    }

    /// All findings but those that are most often right.
    [[nodiscard]] std::vector<Finding> findings() const
    {
        ObjectCheck check;
        std::vector<Finding> found = check.check(*capture_.object, view);
        std::erase_if(found, [](const Finding &finding) { return finding.level == Level::may_differ; });
        return found;
    }

    std::vector<std::uint8_t> received;
    recording::Tree tree;
    CheckedView view;
    std::string unchecked;

private:
    Capture capture_;
};

static std::string text_of(const std::vector<Finding> &findings)
{
    std::string text;
    for (const Finding &finding : findings) {
        text += finding.what + ": " + finding.who + '\n';
    }
    return text;
}

static bool is_report(const Capture &capture)
{
    return capture.view != nullptr && capture.view->name == std::string_view("inconsistent");
}

TEST(Check, FindsNothingInTheSamples)
{
    for (const SampleCapture &sample : sample_captures) {
        for (const std::endian stored : {std::endian::little, std::endian::big}) {
            const Capture capture = parse_capture(sample_line(sample, stored)).capture;
            if (!is_report(capture)) {
                EXPECT_EQ(text_of(Looked(capture).findings()), "") << sample.name << ' ' << capture.byte_order->name;
            }
        }
    }
}

TEST(Check, FindsEachPlantedFaultOnce)
{
    for (const PlantedFault &fault : planted_faults()) {
        const Capture capture = planted(fault);
        const std::string expected = fault.what == nullptr ? "" : std::string(fault.what) + ": " + fault.who + '\n';
        const std::string found = text_of(Looked(capture).findings());
        EXPECT_EQ(is_report(capture) ? found.substr(0, expected.size()) : found, expected) << fault.sample;
    }
    std::ifstream file(L2FIB_SOURCE_DIR "/examples/faults/planted.jsonl", std::ios::binary);
    const std::string lines{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(planted_lines() == lines) << "make-captures writes another one";
}

TEST(Check, FindsEachFaultAcrossObjectsOnce)
{
    const std::string file = "planted";
    LineCounter lines(1);
    AcrossObjects across;
    for (const PlantedFault &fault : planted_faults()) {
        Looked looked(planted(fault));
        across.add(planted(fault), planted(fault).object->xid(looked.received), looked.view, {file, lines});
        lines.pass();
    }
    std::vector<std::string> found;
    for (const Finding &finding : across.findings()) {
        found.push_back(finding.what);
    }
    EXPECT_EQ(found, std::vector<std::string>(planted_across().begin(), planted_across().end()));
}

TEST(Check, HasAPlantedFaultForEachRule)
{
    const auto is_planted = [](const char *object, std::string_view name) {
        const auto faults = planted_faults();
        return std::any_of(faults.begin(), faults.end(), [&](const PlantedFault &fault) {
            return fault.what != nullptr && fault.what == name &&
                   (object == nullptr || std::string_view(planted(fault).object->name) == object);
        });
    };
    for (const Fact &fact : facts()) {
        EXPECT_TRUE(is_planted(fact.object, fact.name)) << fact.object << ": " << fact.name;
    }
    for (const HardwareCheck &check : hardware_checks()) {
        EXPECT_TRUE(is_planted(check.object, check.name)) << check.name;
    }
}

/// What a changed field is about, when checks do not report it.
static bool may_differ(const recording::TreeValue &value)
{
    const std::string name = std::string(value.place->record->name) + '.' + std::string(value.place->field->name);
    const auto fields = fields_that_may_differ();
    return std::any_of(fields.begin(), fields.end(),
                       [&](const MayDiffer &field) { return name == field.field && field.flags == 0; });
}

TEST(Check, ReportsEveryChangeOfAnNpThatMayNotDiffer)
{
    unsigned changes = 0;
    for (const Capture &sample : samples_of_nps()) {
        std::mt19937 random(static_cast<unsigned>(sample.show_data.size()));
        const Looked looked(sample);
        for (std::size_t row = 0; row < looked.view.rows(); ++row) {
            const recording::TreeValue *value = looked.view.cell(row, 1);
            if (value == nullptr || !value->place || value->place->record == nullptr || value->key == "np" ||
                may_differ(*value) || value->is_word || !looked.view.offset_of(row, 0) ||
                *looked.view.offset_of(row, 0) == value->place->offset) {
                continue;
            }
            for (unsigned time = 0; time < 20; ++time, ++changes) {
                Capture changed = sample;
                changed.show_data[value->place->offset + random() % value->width] ^=
                    static_cast<std::uint8_t>(1U << random() % 8);
                const std::string found = text_of(Looked(changed).findings());
                EXPECT_EQ(std::count(found.begin(), found.end(), '\n'), 1) << looked.tree.path_of(*value) << '\n'
                                                                           << found;
            }
        }
    }
    EXPECT_GT(changes, 1000U);
}

TEST(Check, ReportsEveryFlagOfAnNpThatMayNotDiffer)
{
    for (const Capture &sample : samples_of_nps()) {
        const Looked looked(sample);
        for (std::size_t row = 0; row < looked.view.rows(); ++row) {
            const recording::TreeValue *word = looked.view.cell(row, 1);
            for (std::size_t bit = 0; word != nullptr && word->is_word && bit < 8 * word->width; ++bit) {
                Capture changed = sample;
                changed.show_data[word->place->offset + bit / 8] ^= static_cast<std::uint8_t>(0x80U >> bit % 8);
                const std::string name = std::string(word->place->record->name);
                const bool is_of_members = name == "BridgeDomainRecord" && bit == 31 - 21;
                const std::vector<Finding> findings = Looked(changed).findings();
                EXPECT_EQ(findings.size(), is_of_members ? 0U : 1U) << looked.tree.path_of(*word) << " bit " << bit;
            }
        }
    }
}

TEST(Check, SaysNothingOfWhatIsCutShort)
{
    for (const Capture &sample : samples()) {
        if (is_report(sample)) {
            continue;
        }
        use_prefixes(sample, [&](const Capture &capture) {
            Looked looked(capture);
            if (capture.show_data.size() < sample.show_data.size() && looked.unchecked.empty()) {
                EXPECT_EQ(text_of(looked.findings()), "") << sample.object->name << ' ' << capture.show_data.size();
            }
        });
    }
}

} // namespace l2fib
