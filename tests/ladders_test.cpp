// Show data that ends early. The ladder of a sample has a row for all sizes at which the same is said:
//
//   SIZES  STATUS  LINES  what follows these first lines of the whole screen, line by line
#include "client/capture.h"
#include "examples/sample_lines.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/samples.h"
#include "zel_l2fib/show.h"

#include <regex>

namespace l2fib
{

static std::vector<std::string> lines_of(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// A line, with the size that it reports as a distance from the size of the show data.
static std::string without_size(const std::string &line, std::size_t size)
{
    static const std::regex reported_size("(data_size is |data size: |size wrong |buffer size: )(-?[0-9]+)");
    std::smatch found;
    if (!std::regex_search(line, found, reported_size)) {
        return line;
    }
    const auto missing = static_cast<std::int64_t>(size) - std::stoll(found[2]);
    if (missing < 0) { // what the show data says of its size
        return line;
    }
    return found.prefix().str() + found[1].str() + "SIZE" + (missing == 0 ? "" : " - " + std::to_string(missing)) +
           found.suffix().str();
}

/// What a row says of a size.
static std::string rung(const Shown &shown, const std::string &screen, std::size_t size)
{
    std::ostringstream row;
    row << "0x" << std::hex << std::setfill('0') << std::setw(8) << shown.status << std::dec << std::setfill(' ');
    if (shown.text == screen) {
        row << "  the whole screen";
        return row.str();
    }
    const std::vector<std::string> whole = lines_of(screen);
    std::vector<std::string> lines = lines_of(shown.text);
    const auto [other, unused] = std::mismatch(lines.begin(), lines.end(), whole.begin(), whole.end());
    row << std::setw(5) << other - lines.begin();
    lines.erase(lines.begin(), other);
    std::erase_if(lines, [](const std::string &line) { return line.find_first_not_of(' ') == std::string::npos; });
    constexpr std::size_t longest_report = 3;
    if (lines.size() > longest_report) {
        lines = {lines.front(), "...", lines.back()};
    }
    for (std::size_t line = 0; line < lines.size(); ++line) {
        row << (line == 0 ? "  " : " | ") << without_size(lines[line], size);
    }
    return row.str();
}

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
