#include "client/check/hardware_checks.h"

#include "client/check/statements.h"
#include "hw/bridge.h"
#include "rp/bridge_context.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

using recording::FieldKind;
using recording::pattern_of;
using recording::TreeSection;
using recording::TreeValue;

/// How many statements a finding has at most; a bridge can have thousands of members.
constexpr std::size_t most_statements = 8;

static void add(const HardwareCheck &check, Coverage &coverage, Finding finding)
{
    if (finding.statements.empty()) {
        return;
    }
    finding.level = check.level;
    finding.what = check.name;
    finding.meaning = check.meaning;
    coverage.add(std::move(finding));
}

static std::optional<ByteRange> bytes_of(const TreeValue &value)
{
    return value.place ? std::optional(ByteRange{value.place->offset, value.width}) : std::nullopt;
}

/// The NPs of the view, with the sections that are directly or further below them.
template <class Use>
static void for_each_below_nps(const CheckedView &view, recording::Pattern pattern, const Use &use)
{
    const auto sections = view.tree().sections();
    for (std::uint32_t i = 0; i < sections.size(); ++i) {
        if (sections[i].pattern == pattern) {
            use(i);
        }
    }
}

static void check_flood_mask(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    const TreeValue *mask = view.first(pattern_of("hw.np_flood_mask"));
    if (mask == nullptr) {
        return;
    }
    std::vector<bool> has_ports(view.tree().sections().size());
    for_each_below_nps(view, pattern_of("hw.nps[].bridge_ports[]"),
                       [&](std::uint32_t section) { has_ports[view.tree().sections()[section].parent] = true; });
    Finding finding{};
    for_each_below_nps(view, pattern_of("hw.nps[]"), [&](std::uint32_t section) {
        const auto np = view.tree().sections()[section].np;
        if (np && *np < 16 && (mask->number >> *np & 1U) != 0 && !has_ports[section]) {
            finding.statements.push_back({{party_of(view, section)},
                                          "no bridge port",
                                          std::nullopt,
                                          true,
                                          view.tree().path_of(section),
                                          std::nullopt});
        }
    });
    if (!finding.statements.empty()) {
        std::vector<std::string> nps;
        for (const Statement &statement : finding.statements) {
            nps.push_back(statement.parties.front());
        }
        finding.who = names_in_a_row(nps) + (nps.size() == 1 ? " has none" : " have none");
        finding.statements.insert(finding.statements.begin(), {{party_of(view, mask->section)},
                                                               "NP flood mask " + text_of(*mask),
                                                               std::nullopt,
                                                               false,
                                                               view.tree().path_of(*mask),
                                                               bytes_of(*mask)});
    }
    add(check, coverage, std::move(finding));
}

/// A kind of traffic by its name on the screen, with the key of its configuration.
constexpr struct {
    std::string_view name;
    const char *key;
} traffic_kinds[] = {{"Broadcast", "broadcast"}, {"Multicast", "multicast"}, {"Unknown Unicast", "unknown_unicast"}};

/// The section of a key below another one; none when there is no such section.
static std::uint32_t section_below(const CheckedView &view, std::uint32_t outer, const char *key)
{
    const auto sections = view.tree().sections();
    for (std::uint32_t i = outer + 1; i < sections.size(); ++i) {
        if (sections[i].parent == outer && std::strcmp(sections[i].key, key) == 0) {
            return i;
        }
        if (sections[i].parent < outer) {
            break;
        }
    }
    return KeyIndex::none;
}

/// What is wrong with a kind of traffic on an NP, and the value that says so.
struct TrafficFault {
    std::string text; ///< empty when it goes together
    const TreeValue *value;
};

static TrafficFault fault_of_traffic(const CheckedView &view, std::uint32_t configured, std::uint32_t row)
{
    constexpr std::uint64_t is_configured = 3;
    const TreeValue *enabled = view.in_section(configured, "enabled");
    const TreeValue *limit = view.in_section(configured, "rate");
    const TreeValue *status = view.in_section(row, "status");
    const TreeValue *rate = view.in_section(row, "rate");
    if (enabled == nullptr || status == nullptr) {
        return {{}, nullptr};
    }
    if ((enabled->number != 0) != (status->number == is_configured)) {
        return {std::string(enabled->number != 0 ? "enabled" : "disabled") + ", but " + std::string(status->text),
                status};
    }
    const bool are_other_bytes = limit != nullptr && rate != nullptr && limit->place && rate->place &&
                                 limit->place->offset != rate->place->offset;
    if (are_other_bytes && limit->number != rate->number) {
        return {"limit " + text_of(*limit) + ", but " + text_of(*rate), rate};
    }
    return {{}, nullptr};
}

static void check_storm_control_in(const CheckedView &view, std::uint32_t section, Finding &finding)
{
    const auto sections = view.tree().sections();
    const auto say = [&](std::string text, std::string path, std::optional<ByteRange> bytes) {
        finding.statements.push_back(
            {{party_of(view, section)}, std::move(text), std::nullopt, true, std::move(path), bytes});
    };
    std::uint32_t row = section_below(view, section, "traffic");
    const std::uint32_t broadcast = section_below(view, section, "broadcast");
    const TreeValue *enabled = broadcast == KeyIndex::none ? nullptr : view.in_section(broadcast, "enabled");
    if (row == KeyIndex::none && enabled != nullptr && enabled->number != 0) {
        say("Broadcast: enabled, but not applied", view.tree().path_of(section), std::nullopt);
    }
    for (; row < sections.size() && sections[row].parent == section; ++row) {
        const TreeValue *type = view.in_section(row, "type");
        for (const auto &kind : traffic_kinds) {
            const std::uint32_t configured = section_below(view, section, kind.key);
            if (type == nullptr || type->text != kind.name || configured == KeyIndex::none) {
                continue;
            }
            const TrafficFault fault = fault_of_traffic(view, configured, row);
            if (fault.value != nullptr) {
                say(std::string(kind.name) + ": " + fault.text, view.tree().path_of(*fault.value),
                    bytes_of(*fault.value));
            }
        }
    }
}

static void check_storm_control(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    Finding finding{};
    finding.who = "not as configured";
    for (const auto pattern : {pattern_of("hw.nps[].storm_control"), pattern_of("hw.storm_control")}) {
        for_each_below_nps(view, pattern,
                           [&](std::uint32_t section) { check_storm_control_in(view, section, finding); });
    }
    add(check, coverage, std::move(finding));
}

/// The second copy of each member against the first.
static void check_copies(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    const auto sections = view.tree().sections();
    std::vector<const TreeValue *> firsts(sections.size(), nullptr); // a value of each section's record
    for (const TreeValue &value : view.tree().values()) {
        if (value.place && value.place->record != nullptr && firsts[value.section] == nullptr) {
            firsts[value.section] = &value;
        }
    }
    constexpr auto members = pattern_of("hw.nps[].members[]");
    constexpr auto pw_members = pattern_of("hw.pw_over_bvi_members[]");
    Finding finding{};
    finding.who = "copy 1 is not like copy 0";
    for (const TreeValue &value : view.tree().values()) {
        const TreeSection &section = sections[value.section];
        const bool is_second = (section.pattern == members || section.pattern == pw_members) && section.index % 2 == 1;
        const TreeValue *first = is_second ? firsts[value.section - 1] : nullptr;
        if (first == nullptr || !value.place || value.place->record != first->place->record) {
            continue;
        }
        const std::size_t offset = value.place->offset;
        const std::size_t other = first->place->record_offset() + (offset - value.place->record_offset());
        if (offset == other || std::memcmp(&view.received()[offset], &view.received()[other], value.width) == 0 ||
            finding.statements.size() == most_statements) {
            continue;
        }
        std::string name(value.key);
        std::replace(name.begin(), name.end(), '_', ' ');
        finding.statements.push_back({{party_of(view, value.section)},
                                      "member " + std::to_string(section.index / 2) + ": " + name,
                                      std::nullopt,
                                      true,
                                      view.tree().path_of(value),
                                      bytes_of(value)});
    }
    add(check, coverage, std::move(finding));
}

/// The members of an NP: by the HAL, by the bridge domain, and those that are listed.
static void check_member_counts(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    const auto hal = view.tree().records_named("BridgeHalNpEntry");
    const auto counts = view.tree().records_named("BridgeMemberCounts");
    if (counts.empty()) {
        return;
    }
    std::vector<std::uint64_t> by_hal;
    std::uint64_t all = 0;
    for (const std::size_t entry : hal) {
        std::uint64_t members = 0;
        for (std::size_t group = 0; group < 3; ++group) {
            members +=
                view.number_at(entry + offsetof(BridgeHalNpEntry, shg_members) + 2 * group, 2, FieldKind::stored);
        }
        by_hal.push_back(members);
        all += members;
    }
    const std::uint64_t total = view.number_at(counts.front(), 2, FieldKind::number);
    Finding finding{};
    if (total != all) {
        finding.who = "the total is another";
        finding.statements.push_back({{"HAL"}, std::to_string(all), std::nullopt, false, "hw.hal", std::nullopt});
        finding.statements.push_back(
            {{"line card"}, std::to_string(total), std::nullopt, true, "hw", ByteRange{counts.front(), 2}});
        return add(check, coverage, std::move(finding));
    }
    std::vector<std::uint64_t> listed(view.tree().sections().size());
    for_each_below_nps(view, pattern_of("hw.nps[].members[]"),
                       [&](std::uint32_t section) { ++listed[view.tree().sections()[section].parent]; });
    finding.who = "not as many as the HAL has";
    for_each_below_nps(view, pattern_of("hw.nps[]"), [&](std::uint32_t section) {
        const std::size_t np = view.tree().sections()[section].index;
        const TreeValue *domain = view.in_section(section, "num_members");
        if (np >= by_hal.size() || domain == nullptr || finding.statements.size() >= most_statements ||
            (domain->number == by_hal[np] && listed[section] / 2 == by_hal[np])) {
            return;
        }
        const std::string party = party_of(view, section);
        finding.statements.push_back({{party + " HAL"},
                                      std::to_string(by_hal[np]),
                                      std::nullopt,
                                      false,
                                      "hw.hal",
                                      ByteRange{hal[np] + offsetof(BridgeHalNpEntry, shg_members), 6}});
        finding.statements.push_back({{party},
                                      text_of(*domain) + ", " + std::to_string(listed[section] / 2) + " listed",
                                      std::nullopt,
                                      true,
                                      view.tree().path_of(*domain),
                                      bytes_of(*domain)});
    });
    add(check, coverage, std::move(finding));
}

/// The values of a report's line up to one of them, as the screen has them.
static std::string line_up_to(const CheckedView &view, std::uint32_t last)
{
    constexpr std::uint32_t most_values = 16; // show data may have any number of them on a line
    const auto sections = view.tree().sections();
    const TreeValue *line = view.in_section(last, "line");
    const auto is_on_line = [&](std::uint32_t section) {
        const TreeValue *its = view.in_section(section, "line");
        return sections[section].pattern == sections[last].pattern && its != nullptr && line != nullptr &&
               its->number == line->number;
    };
    std::uint32_t first = last;
    while (first > 1 && last - first < most_values && is_on_line(first - 1)) {
        --first;
    }
    std::string text;
    for (std::uint32_t at = first; at <= last; ++at) {
        const TreeValue *words = view.in_section(at, "text");
        const TreeValue *value = words != nullptr ? words : view.in_section(at, "number");
        text += text.empty() ? "" : " ";
        text += value == nullptr ? "" : text_of(*value);
    }
    return text;
}

/// What the producer of a report has found itself.
static void check_verdicts(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    constexpr std::size_t most_findings = 50;
    const std::string_view wanted = check.level == Level::error ? "Error" : "Warning";
    std::size_t found = 0;
    for (const auto pattern : {pattern_of("rp.values[].verdict"), pattern_of("hw.values[].verdict")}) {
        view.for_each(pattern, [&](const TreeValue &verdict) {
            if (verdict.text != wanted || ++found > most_findings) {
                return;
            }
            const TreeValue *value = view.in_section(verdict.section, "number");
            value = value == nullptr ? view.in_section(verdict.section, "text") : value;
            Finding finding{};
            finding.who = line_up_to(view, verdict.section);
            finding.statements.push_back({{party_of(view, verdict.section)},
                                          std::string(verdict.text),
                                          std::nullopt,
                                          true,
                                          view.tree().path_of(verdict),
                                          value == nullptr ? std::nullopt : bytes_of(*value)});
            add(check, coverage, std::move(finding));
        });
    }
    if (found > most_findings) {
        Finding finding{};
        finding.who = std::to_string(found - most_findings) + " more";
        finding.statements.push_back({{"report"}, std::string(wanted), std::nullopt, false, "", std::nullopt});
        add(check, coverage, std::move(finding));
    }
}

static void check_scans(const CheckedView &view, const HardwareCheck &check, Coverage &coverage)
{
    const auto sections = view.tree().sections();
    std::vector<std::uint64_t> sent(sections.size());
    std::vector<std::uint64_t> answered(sections.size());
    const auto add_up = [&](recording::Pattern pattern, std::vector<std::uint64_t> &sums) {
        view.for_each(pattern, [&](const TreeValue &value) { sums[sections[value.section].parent] += value.number; });
    };
    add_up(pattern_of("hw.mac_scans[].messages[].sent"), sent);
    add_up(pattern_of("hw.mac_scans[].messages[].responses"), answered);
    Finding finding{};
    finding.who = "not all are answered";
    for_each_below_nps(view, pattern_of("hw.mac_scans[]"), [&](std::uint32_t section) {
        if (sent[section] != answered[section]) {
            finding.statements.push_back(
                {{party_of(view, section)},
                 std::to_string(sent[section]) + " sent, " + std::to_string(answered[section]) + " answered",
                 std::nullopt,
                 true,
                 view.tree().path_of(section),
                 std::nullopt});
        }
    });
    add(check, coverage, std::move(finding));
}

static constexpr HardwareCheck all_checks[] = {
    {"ac", "bridge ports", "NPs of hw.np_flood_mask have hw.nps[].bridge_ports", Level::error, check_flood_mask,
     "Frames are flooded to the NP, which has no port to send them out of."},
    {"ac", "storm control", "hw.nps[].storm_control.traffic[] is as configured", Level::error, check_storm_control,
     "Floods of frames are not limited as configured."},
    {"bridge", "storm control", "hw.storm_control.traffic[] is as configured", Level::error, check_storm_control,
     "Floods of frames are not limited as configured."},
    {"bridge", "copies of members", "copy 1 of each member is like copy 0", Level::error, check_copies,
     "Frames reach the member or not, depending on the copy that the NP uses."},
    {"bridge", "members", "the HAL, the bridge domain and the list have as many", Level::error, check_member_counts,
     "Frames are not flooded to some of the bridge's members, or to former ones."},
    {nullptr, "report", "no Error in rp.values[].verdict and hw.values[].verdict", Level::error, check_verdicts,
     "The router itself has found this wrong."},
    {nullptr, "report", "no Warning in rp.values[].verdict and hw.values[].verdict", Level::note, check_verdicts,
     "The router itself has found this doubtful."},
    {"resources", "MAC scans", "as many hw.mac_scans[].messages[] are answered as sent", Level::note, check_scans,
     "Addresses may stay in hardware after a flush."},
};

std::span<const HardwareCheck> hardware_checks()
{
    return all_checks;
}

} // namespace l2fib
