#include "client/check/report.h"

#include "client/check/facts.h"
#include "client/check/statements.h"
#include "client/hex_digits.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace l2fib
{

static std::string counted(std::size_t count, const char *one, const char *many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

/// "2 disagreements, 1 note"
static std::string summary_of(const std::vector<Finding> &findings)
{
    const auto count = [&](Level level) {
        return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(),
                                                      [&](const Finding &finding) { return finding.level == level; }));
    };
    std::string summary;
    const auto add = [&](Level level, const char *one, const char *many) {
        if (const std::size_t found = count(level); found != 0) {
            summary += (summary.empty() ? "" : ", ") + counted(found, one, many);
        }
    };
    add(Level::error, "disagreement", "disagreements");
    add(Level::note, "note", "notes");
    add(Level::may_differ, "difference that is most often right", "differences that are most often right");
    return summary;
}

/// "bytes 0x28a: 00 00 00 01"
static std::string text_of_bytes(const ByteRange &bytes, std::span<const std::uint8_t> received)
{
    constexpr std::size_t most = 8;
    std::array<char, 32> offset{};
    std::snprintf(offset.data(), offset.size(), "bytes 0x%zx:", bytes.offset);
    std::string text = offset.data();
    for (std::size_t i = 0; i < std::min(bytes.width, most); ++i) {
        text += ' ' + hex_of_bytes({received[bytes.offset + i]});
    }
    return text + (bytes.width > most ? " ..." : "");
}

static bool have_bytes(const Statement &statement, std::span<const std::uint8_t> received)
{
    return statement.bytes && statement.bytes->offset + statement.bytes->width <= received.size();
}

static std::string text_of(const Finding &finding, std::span<const std::uint8_t> received)
{
    std::string text = "  ";
    text += finding.level == Level::note ? "note: " : "";
    text += finding.what + ": " + finding.who + '\n';
    std::vector<std::string> parties;
    std::size_t widest_party = 0;
    std::size_t widest_text = 0;
    for (const Statement &statement : finding.statements) {
        parties.push_back(names_in_a_row(statement.parties));
        widest_party = std::max(widest_party, parties.back().size());
        widest_text = std::max(widest_text, statement.text.size());
    }
    for (std::size_t i = 0; i < parties.size(); ++i) {
        const Statement &statement = finding.statements[i];
        std::string line = statement.is_odd ? "    > " : "      ";
        line += parties[i] + std::string(widest_party - parties[i].size() + 2, ' ');
        line += statement.text + std::string(widest_text - statement.text.size(), ' ');
        line += statement.number ? "  " + std::to_string(*statement.number) : "";
        if (statement.is_odd) {
            line += have_bytes(statement, received) ? "    " + text_of_bytes(*statement.bytes, received) : "";
            line += statement.path.empty() ? "" : "    " + statement.path;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text + "    " + finding.meaning + '\n';
}

std::string text_of(const std::string &heading, const std::vector<Finding> &findings,
                    std::span<const std::uint8_t> received)
{
    std::string text = heading + ": " + summary_of(findings) + '\n';
    for (const Finding &finding : findings) {
        text += text_of(finding, received);
    }
    return text;
}

void CheckReport::write_findings(const std::vector<Finding> &findings, std::span<const std::uint8_t> received)
{
    for (const Finding &finding : findings) {
        writer_.open_element("findings");
        writer_.member("level", std::string_view(text_of(finding.level)));
        writer_.member("what", std::string_view(finding.what));
        writer_.member("who", std::string_view(finding.who));
        for (const Statement &statement : finding.statements) {
            writer_.open_element("statements");
            writer_.open_array("parties");
            for (const std::string &party : statement.parties) {
                writer_.element(std::string_view(party));
            }
            writer_.close_array();
            writer_.member("text", std::string_view(statement.text));
            if (statement.number) {
                writer_.member("number", *statement.number);
            }
            writer_.member("odd", statement.is_odd);
            writer_.member("path", std::string_view(statement.path));
            if (have_bytes(statement, received)) {
                const auto bytes = received.subspan(statement.bytes->offset, statement.bytes->width);
                writer_.member("offset", std::uint64_t{statement.bytes->offset});
                writer_.member("width", std::uint64_t{statement.bytes->width});
                writer_.member("hex", std::string_view(hex_of_bytes({bytes.begin(), bytes.end()})));
            }
            writer_.close_object();
        }
        writer_.member("meaning", std::string_view(finding.meaning));
        writer_.close_object();
    }
}

void CheckReport::write_object(const CheckedObject &object, std::span<const std::uint8_t> received)
{
    writer_.open_line();
    writer_.member("format", std::uint64_t{1});
    writer_.member("file", std::string_view(object.file));
    writer_.member("line", std::uint64_t{object.line});
    writer_.member("object", std::string_view(object.kind));
    writer_.member("name", std::string_view(object.name));
    writer_.member("agrees", object.unchecked.empty() && !object.disagrees());
    if (!object.unchecked.empty()) {
        writer_.member("unchecked", std::string_view(object.unchecked));
    }
    write_findings(object.findings, received);
    writer_.close_line();
}

void CheckReport::name_unchecked(const std::string &object)
{
    constexpr std::size_t most_named = 5;
    if (first_unchecked_.size() < most_named) {
        first_unchecked_.push_back(object);
    }
}

void CheckReport::hand_over(Parcel &parcel)
{
    parcel.put(std::exchange(counts_, {}));
    parcel.put(std::exchange(first_unchecked_, {}));
}

void CheckReport::take_over(OpenedParcel &parcel)
{
    const auto counts = parcel.taken<Counts>();
    counts_.objects += counts.objects;
    counts_.disagreeing += counts.disagreeing;
    counts_.unchecked += counts.unchecked;
    for (const std::string &object : parcel.taken<std::vector<std::string>>()) {
        name_unchecked(object);
    }
}

void CheckReport::object(const CheckedObject &object, std::span<const std::uint8_t> received)
{
    ++counts_.objects;
    counts_.disagreeing += object.disagrees() ? 1 : 0;
    if (!object.unchecked.empty()) {
        ++counts_.unchecked;
        name_unchecked(object.place() + " (" + object.unchecked + ")");
    }
    if (json_) {
        write_object(object, received);
    } else if (!object.findings.empty()) {
        const std::string text = text_of(object.place() + ": " + object.name, object.findings, received);
        std::fputs(text.c_str(), stdout);
    }
}

void CheckReport::across(const std::vector<Finding> &findings)
{
    counts_.across += findings.size();
    if (json_ && !findings.empty()) {
        writer_.open_line();
        writer_.member("format", std::uint64_t{1});
        writer_.member("agrees", false);
        write_findings(findings, {});
        writer_.close_line();
    } else if (!findings.empty()) {
        std::fputs(text_of("across objects", findings, {}).c_str(), stdout);
    }
}

void CheckReport::end()
{
    if (json_) {
        writer_.open_line();
        writer_.member("format", std::uint64_t{1});
        writer_.member("objects", std::uint64_t{counts_.objects});
        writer_.member("disagreeing", std::uint64_t{counts_.disagreeing});
        writer_.member("across", std::uint64_t{counts_.across});
        writer_.member("not_checked", std::uint64_t{counts_.unchecked});
        writer_.close_line();
        return writer_.flush();
    }
    std::string line;
    if (counts_.disagreeing == 0) {
        line = counted(counts_.objects - counts_.unchecked, "object agrees.", "objects agree.");
    } else {
        line = std::to_string(counts_.disagreeing) + " of " + counted(counts_.objects, "object", "objects") +
               (counts_.disagreeing == 1 ? " disagrees." : " disagree.");
    }
    line +=
        counts_.across == 0 ? "" : ' ' + counted(counts_.across, "disagreement", "disagreements") + " across objects.";
    if (counts_.unchecked != 0) {
        std::vector<std::string> names = first_unchecked_;
        if (counts_.unchecked > names.size()) {
            names.push_back(std::to_string(counts_.unchecked - names.size()) + " more");
        }
        line += ' ' + std::to_string(counts_.unchecked) + " could not be checked: " + names_in_a_row(names);
        line += '.';
    }
    std::printf("%s\n", line.c_str());
}

ExitStatus CheckReport::status() const
{
    if (counts_.unchecked != 0) {
        return unusable;
    }
    return counts_.disagreeing + counts_.across == 0 ? shown : view_failed;
}

} // namespace l2fib
