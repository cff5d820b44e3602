#include "tests/support/ladder.h"

#include <algorithm>
#include <iomanip>
#include <regex>
#include <sstream>
#include <vector>

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

std::string rung(const Shown &shown, const std::string &screen, std::size_t size)
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

void Ladder::add(std::size_t number, const std::string &said)
{
    if (said != said_) {
        end_row();
        first_ = number;
        said_ = said;
    }
    last_ = number;
}

std::string Ladder::text()
{
    end_row();
    said_.clear();
    return text_;
}

void Ladder::end_row()
{
    if (!said_.empty()) {
        std::ostringstream row;
        row << std::setw(5) << first_ << " .. " << std::setw(5) << last_ << "  " << said_ << '\n';
        text_ += row.str();
    }
}

} // namespace l2fib
