// What the recording build takes down of the views, and the lines that come of it: for the samples as every object,
// view and direction, whole, cut short and changed, and for random bytes.
#include "client/capture_line.h"
#include "examples/sample_lines.h"
#include "recording/schema/corpus.h"
#include "recording/schema/faults.h"

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
    Capture noise = samples().front();
    for (const unsigned size : {10U, 100U, 1000U, 10000U}) {
        std::mt19937 random(size);
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

TEST(RecordedViews, PrintAndConvertAsTheLibrary)
{
    use_all(unless_failed([](const Capture &capture) { ASSERT_EQ(fault_of_text(capture), ""); }));
}

TEST(RecordedViews, ValuesStandOnTheScreenInTheirOrder)
{
    use_whole(unless_failed([](const Capture &capture) { ASSERT_EQ(fault_of_screen(capture), ""); }));
}

TEST(RecordedViews, BytesYieldTheNumbersOfTheirValues)
{
    use_whole(unless_failed([](const Capture &capture) { ASSERT_EQ(fault_of_bytes(capture), ""); }));
}

/// Reading lines takes the sanitizers minutes, so that they are shown only some.
#ifdef __SANITIZE_ADDRESS__
constexpr unsigned line_of_so_many = 23;
#else
constexpr unsigned line_of_so_many = 1;
#endif

TEST(RecordedLines, AreAsPublished)
{
    const recording::PublishedSchema schema;
    unsigned captures = 0;
    const auto are_published_as = [&](const Rendering &rendering) {
        return unless_failed([&](const Capture &capture) {
            if (++captures % line_of_so_many == 0) {
                ASSERT_EQ(fault_of_line(capture, rendering, schema), "");
            }
        });
    };
    use_all(are_published_as(as_json));
    use_whole(are_published_as(as_bytes));
}

static Capture first_bytes(Capture capture, std::size_t count)
{
    capture.show_data.resize(count);
    return capture;
}

TEST(RecordedLines, SayTheSameOfLineCardsThatStoreTheOtherWay)
{
    for (const SampleCapture &sample : sample_captures) {
        const Capture little = parse_capture(sample_line(sample)).capture;
        const Capture big = parse_capture(sample_line(sample, std::endian::big)).capture;
        EXPECT_EQ(line_of(big), line_of(little)) << sample.name;
        EXPECT_EQ(fault_of_bytes(big), "") << sample.name;
        for_each_byte_run(little, [&](const recording::ByteRun &run) {
            const std::size_t end = run.offset + run.size;
            EXPECT_EQ(line_of(first_bytes(big, end)), line_of(first_bytes(little, end))) << sample.name << ' ' << end;
        });
    }
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
