#include "client/check/statements.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace l2fib
{

using recording::TreeSection;
using recording::TreeValue;

std::string party_of(const CheckedView &view, std::uint32_t section)
{
    const auto sections = view.tree().sections();
    if (const auto np = sections[section].np) {
        return "NP" + std::to_string(*np);
    }
    std::string_view inner;
    std::string_view outer;
    for (std::uint32_t at = section; at != 0; at = sections[at].parent) {
        inner = outer;
        outer = sections[at].key;
    }
    if (outer == "rp") {
        return "RP";
    }
    return inner == "hal" ? "HAL" : "line card";
}

std::string part_of(const CheckedView &view, std::uint32_t section)
{
    const auto sections = view.tree().sections();
    std::string part;
    for (std::uint32_t at = section; at != 0 && sections[at].parent != 0; at = sections[at].parent) {
        const TreeSection &part_at = sections[at];
        const bool is_np = part_at.is_element && std::string_view(part_at.key).ends_with("nps");
        if (is_np && part_at.pattern == recording::pattern_of("hw.nps[]")) {
            return part;
        }
        std::string name = part_at.key;
        if (is_np && sections[part_at.parent].parent != 0) {
            name = sections[part_at.parent].key;
        } else if (part_at.is_element && !is_np) {
            name.append("[").append(std::to_string(part_at.index)).append("]");
        }
        name.append(part.empty() ? "" : ".").append(part);
        part = std::move(name);
        if (is_np) {
            return part;
        }
    }
    return part;
}

std::string text_of(const TreeValue &value)
{
    return (value.label.ends_with("0x") ? "0x" : "") + std::string(value.text);
}

std::string names_in_a_row(const std::vector<std::string> &names)
{
    constexpr std::size_t most = 6;
    std::string row;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i == most && names.size() > most + 1) {
            return row + " and " + std::to_string(names.size() - i) + " more";
        }
        row += i == 0 ? "" : i + 1 == names.size() ? " and " : ", ";
        row += names[i];
    }
    return row;
}

/// What the places say that say the same number.
struct Group {
    std::uint64_t number;
    std::vector<const Said *> said;
    std::vector<std::string> parties;
};

static std::vector<Group> grouped(const CheckedView &view, std::span<const Said> said)
{
    std::vector<Group> groups;
    std::set<std::pair<std::size_t, std::string>> seen; // values that are the same bytes prove nothing
    for (const Said &one : said) {
        if (one.bytes && !seen.emplace(one.bytes->offset, one.text).second) {
            continue;
        }
        auto group =
            std::find_if(groups.begin(), groups.end(), [&](const Group &other) { return other.number == one.number; });
        if (group == groups.end()) {
            groups.push_back({one.number, {}, {}});
            group = std::prev(groups.end());
        }
        group->said.push_back(&one);
        std::string party = party_of(view, one.section);
        if (group->parties.empty() || group->parties.back() != party) {
            group->parties.push_back(std::move(party));
        }
    }
    return groups;
}

/// A party that contradicts itself is named with its part.
static void tell_parts_apart(const CheckedView &view, std::vector<Group> &groups)
{
    std::set<std::string> once;
    std::set<std::string> twice;
    for (Group &group : groups) {
        std::vector<std::string> &parties = group.parties;
        for (std::size_t i = 0; i < parties.size(); ++i) { // the places of a party need not be neighbours
            parties.erase(std::remove(parties.begin() + static_cast<std::ptrdiff_t>(i) + 1, parties.end(), parties[i]),
                          parties.end());
            if (!once.insert(parties[i]).second) {
                twice.insert(parties[i]);
            }
        }
    }
    for (Group &group : groups) {
        for (std::string &party : group.parties) {
            if (!twice.contains(party)) {
                continue;
            }
            for (const Said *said : group.said) {
                if (party == party_of(view, said->section)) {
                    party += said->part.empty() ? "" : " " + said->part;
                    break;
                }
            }
        }
    }
}

static Statement statement_of(const CheckedView &view, const Group &group, bool is_odd)
{
    const Said &first = *group.said.front();
    Statement statement;
    statement.parties = group.parties;
    statement.text = first.text.empty() && first.value != nullptr ? text_of(*first.value) : first.text;
    for (const Said *said : group.said) { // what the screen shows is told rather than what it does not
        if (first.value == nullptr && said->value != nullptr && said->text.empty()) {
            statement.text = text_of(*said->value);
        }
    }
    if (first.value != nullptr && first.text.empty() && first.value->has_number && !first.value->is_word &&
        statement.text.find_first_not_of("-0123456789") != std::string::npos && !statement.text.starts_with("0x")) {
        statement.number = first.number;
    }
    statement.is_odd = is_odd;
    statement.path = first.value != nullptr && first.path.empty() ? view.tree().path_of(*first.value) : first.path;
    statement.bytes = first.bytes;
    return statement;
}

std::optional<Finding> disagreement(const CheckedView &view, std::span<const Said> said)
{
    std::vector<Group> groups = grouped(view, said);
    if (groups.size() < 2) {
        return std::nullopt;
    }
    tell_parts_apart(view, groups);
    const auto size = [](const Group &group) { return group.parties.size(); };
    const auto largest = std::max_element(groups.begin(), groups.end(),
                                          [&](const Group &a, const Group &b) { return size(a) < size(b); });
    const bool has_majority =
        std::count_if(groups.begin(), groups.end(), [&](const Group &g) { return size(g) == size(*largest); }) == 1;
    Finding finding{};
    std::vector<std::string> odd;
    for (const Group &group : groups) {
        const bool is_odd = !has_majority || &group != &*largest;
        finding.statements.push_back(statement_of(view, group, is_odd));
        if (is_odd) {
            odd.insert(odd.end(), group.parties.begin(), group.parties.end());
        }
    }
    std::stable_partition(finding.statements.begin(), finding.statements.end(),
                          [](const Statement &statement) { return !statement.is_odd; });
    finding.who = names_in_a_row(odd) + (!has_majority ? " disagree" : odd.size() == 1 ? " stands alone" : " differ");
    return finding;
}

} // namespace l2fib
