// Show data that ends early. The ladder of a sample has a row for all sizes at which the same is said:
//
//   SIZES  STATUS  LINES  what follows these first lines of the whole screen, line by line
#include "client/capture_line.h"
#include "examples/sample_lines.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/samples.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// Whether what is shown is the beginning of the whole screen, but for a report at its end.
static bool is_beginning_of(const std::string &screen, const std::string &text)
{
    std::size_t report = text.size();
    for (const char *words : {"data_size is", "data size:", "size wrong", "ERROR: ", "print handler failed"}) {
        report = std::min(report, text.find(words));
    }
    const std::size_t line = report == text.size() ? report : text.rfind('\n', report);
    return line == std::string::npos || screen.starts_with(text.substr(0, line));
}

class Ladders : public Samples
{
protected:
    /// The hardware's view of the first bytes, as from a client that calls it directly with a context that is
    /// converted.
    [[nodiscard]] Shown show_hardware(std::size_t size) const
    {
        const std::uint32_t objtype = capture.object->objtype;
        const std::size_t context = objtype == L2FIB_OBJTYPE_AC || objtype == L2FIB_OBJTYPE_BRIDGE ? 2 : 0;
        std::vector<std::uint8_t> converted = capture.show_data;
        zel_l2fib_rp_obj_endian_xform_ctx(objtype, converted.data() + context);
        converted.resize(size);
        const GuardedBytes data(converted);
        return shown([&] {
            return zel_l2fib_trident_print_internal_detail(1, objtype, 1, capture.direction->number, L2FIB_VIEW_DETAIL,
                                                           data.data(), data.size());
        });
    }
};

TEST_P(Ladders, ShowDataThatEndsEarly)
{
    const std::string screen = show(capture.show_data.size()).text;
    Ladder ladder;
    std::size_t refused = 0; // before any view has seen them
    for (std::size_t size = 0; size <= capture.show_data.size(); ++size) {
        const Shown shown = show(size);
        ladder.add(size, rung(shown, screen, size));
        refused += shown.text.starts_with("\nzel_l2fib_print_internal: data_size") ? 1 : 0;
        if (shown.status != 0) {
            ASSERT_TRUE(is_beginning_of(screen, shown.text)) << size << " bytes:" << shown;
        }
    }
    capture.show_data.push_back(0);
    ladder.add(capture.show_data.size(), rung(show(capture.show_data.size()), screen, capture.show_data.size()));

    std::string text = ladder.text();
    if (refused != 0 && capture.view->name == std::string("detail")) {
        Ladder of_hardware;
        for (std::size_t size = 1; size < refused; ++size) {
            of_hardware.add(size, rung(show_hardware(size), "none", size));
        }
        text += "the hardware's view by itself:\n" + of_hardware.text();
    }
    expect_golden(std::string(GetParam().name) + ".ladder", text);
}

INSTANTIATE_TEST_SUITE_P(, Ladders, testing::ValuesIn(sample_captures), sample_name);

} // namespace l2fib
