// What the recording build takes down of the views, and the lines that come of it: for the samples as every object,
// view and direction, whole, cut short and changed, and for random bytes.
#include "recording/schema/check.h"
#include "recording/schema/corpus.h"
#include "recording/schema/value_log.h"

#include <gtest/gtest.h>
#include <random>

namespace l2fib
{

/// Stops at the first capture with which something is wrong, and says which it is.
static UseCapture unless_failed(const UseCapture &use)
{
    return [use](const Capture &capture) {
        if (!testing::Test::HasFailure()) {
            SCOPED_TRACE(std::string(capture.object->name) + ' ' + capture.direction->name + ' ' +
                         (capture.view == nullptr ? "" : capture.view->name) + ", " +
                         std::to_string(capture.show_data.size()) + " bytes");
            use(capture);
        }
    };
}

static void use_whole(const UseCapture &use)
{
    constexpr unsigned changed = 100;
    for (const Capture &sample : samples()) {
        use_as_everything(sample, use);
        use_on_other_routers(sample, use);
        use_changed(sample, changed, use);
    }
    std::mt19937 random;
    Capture noise = samples().front();
    for (const std::size_t size : {10, 100, 1000, 10000}) {
        noise.show_data.resize(size);
        for (std::uint8_t &byte : noise.show_data) {
            byte = static_cast<std::uint8_t>(random());
        }
        use_as_everything(noise, use);
    }
}

static void use_all(const UseCapture &use)
{
    use_whole(use);
    for (const Capture &sample : samples()) {
        use_prefixes(sample, use);
    }
}

/// A view as it was recorded.
struct Recorded {
    explicit Recorded(const Capture &capture) : converted(capture.show_data)
    {
        log.begin(converted);
        text = text_of_recording(capture, converted, log);
    }

    std::vector<std::uint8_t> converted;
    recording::ValueLog log;
    std::string text;
};

TEST(RecordedViews, PrintAndConvertAsTheLibrary)
{
    use_all(unless_failed([](const Capture &capture) {
        const Recorded recorded(capture);
        Capture shown = capture;
        ASSERT_EQ(recorded.text, text_on(stdout, [&] { shown.show(); }));
        ASSERT_EQ(recorded.converted, shown.show_data);
    }));
}

/// Where a value ends on a screen, at or after a place: its label, blanks, and its text.
static std::size_t end_of(const recording::LoggedValue &value, const std::string &screen, std::size_t from)
{
    const std::string text(recording::trimmed(value.text));
    for (std::size_t at = screen.find(value.label, from); at != std::string::npos;
         at = screen.find(value.label, at + 1)) {
        const std::size_t begin = screen.find_first_not_of(' ', at + value.label.size());
        if (begin != std::string::npos && screen.compare(begin, text.size(), text) == 0) {
            return begin + text.size();
        }
    }
    return std::string::npos;
}

TEST(RecordedViews, ValuesStandOnTheScreenInTheirOrder)
{
    use_whole(unless_failed([](const Capture &capture) {
        const Recorded recorded(capture);
        std::size_t place = 0;
        for (const recording::LoggedValue &value : recorded.log.values()) {
            if (value.is_on_screen() && !recording::trimmed(value.text).empty()) {
                place = end_of(value, recorded.text, place);
                ASSERT_NE(place, std::string::npos) << value.path << ": " << value.label << value.text;
            }
        }
        place = 0;
        for (const std::string &name : recorded.log.flags()) {
            place = recorded.text.find(name, place);
            ASSERT_NE(place, std::string::npos) << name;
        }
    }));
}

/// The number in some bytes; none in bytes that are no number of their own.
static std::optional<std::uint64_t> number_in(std::span<const std::uint8_t> bytes, const recording::Place &place)
{
    const auto kind = place.field == nullptr ? recording::FieldKind::number : place.field->kind;
    if (kind != recording::FieldKind::number && kind != recording::FieldKind::stored) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        number = number << 8U | bytes[kind == recording::FieldKind::number ? i : bytes.size() - 1 - i];
    }
    return number;
}

static bool has_value(const std::vector<recording::ByteRun> &runs, const recording::LoggedValue &value)
{
    return std::any_of(runs.begin(), runs.end(), [&](const recording::ByteRun &run) {
        return run.offset == value.place->offset && run.size >= value.printed->source.width &&
               std::any_of(run.values.begin(), run.values.end(),
                           [&](const recording::ShownValue &shown) { return shown.path == value.path; });
    });
}

TEST(RecordedViews, BytesYieldTheNumbersOfTheirValues)
{
    use_whole(unless_failed([](const Capture &capture) {
        const Recorded recorded(capture);
        recording::BytesRecorder bytes;
        std::vector<std::uint8_t> converted = capture.show_data;
        bytes.begin(converted);
        text_of_recording(capture, converted, bytes);
        std::vector<recording::ByteRun> runs;
        bytes.for_each_run([&](const recording::ByteRun &run) { runs.push_back(run); });
        for (const recording::LoggedValue &value : recorded.log.values()) {
            if (!value.place || !value.printed || value.printed->source.is_said) {
                continue;
            }
            const recording::Source &source = value.printed->source;
            ASSERT_TRUE(has_value(runs, value)) << value.path;
            const auto received = std::span(capture.show_data).subspan(value.place->offset, source.width);
            const auto number = number_in(received, *value.place);
            if (source.has_number && !source.is_part && number) {
                const std::uint64_t mask = ~std::uint64_t{0} >> (64 - 8 * source.width);
                ASSERT_EQ(source.number & mask, *number) << value.path;
            }
        }
    }));
}

TEST(RecordedLines, AreAsPublished)
{
    const recording::PublishedSchema schema;
    use_all(unless_failed(
        [&](const Capture &capture) { ASSERT_EQ(schema.violation(recording::parse_line(line_of(capture))), ""); }));
    use_whole(unless_failed([&](const Capture &capture) {
        const std::string line = line_of(capture, {.json = true, .bytes = true});
        ASSERT_EQ(schema.violation(recording::parse_line(line)), "");
    }));
}

/// The check itself: a line of each kind of fault.
TEST(RecordedLines, ThatAreNotAsPublishedAreFound)
{
    const recording::PublishedSchema schema;
    const nlohmann::json line = recording::parse_line(line_of(samples().front()));
    ASSERT_EQ(schema.violation(line), "");
    const auto changed = [&](const char *place, const nlohmann::json &value) {
        nlohmann::json other = line;
        other[nlohmann::json::json_pointer(place)] = value;
        return schema.violation(other);
    };
    EXPECT_EQ(changed("/format", 2), "line.format has another value");
    EXPECT_EQ(changed("/direction", "up"), "line.direction is none of those that there are");
    EXPECT_EQ(changed("/rp/xid", "3407875"), "line.rp.xid is no integer");
    EXPECT_EQ(changed("/rp/flags/0", 1), "line.rp.flags[] is no string");
    EXPECT_EQ(changed("/hw/nps/0/hat", 1), "line.hw.nps[].hat is not published");
    EXPECT_EQ(changed("/hw/nps/0/xid", nlohmann::json::object()), "line.hw.nps[].xid has not all that is required");
    for (const char *text : {R"({"a":1,"a":2})", R"({"":1})", R"({"a":[{"b":1,"b":1}]})", "{"}) {
        EXPECT_ANY_THROW(recording::parse_line(text)) << text;
    }
}

} // namespace l2fib
