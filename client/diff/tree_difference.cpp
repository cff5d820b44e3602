#include "client/diff/tree_difference.h"

#include "client/check/statements.h"
#include "client/hex_digits.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace l2fib
{

using recording::Tree;
using recording::TreeSection;
using recording::TreeValue;

/// What changes by itself, by its key in the JSON.
static constexpr std::string_view changing_keys[] = {
    // times
    "last_notification",
    "time",
    // where hardware counts or limits
    "statistics_pointer",
    "pbb_statistics_pointer",
    "evpn_statistics_pointer",
    "learn_count_pointer",
    "learn_counter",
    "evpn_counter",
    "mac_limit_counter_index",
    "learn_limit_count_index",
    "token_bucket_id",
    "lag_pointer",
    // counters
    "created",
    "modified",
    "bound",
    "unbound",
    "deleted",
    "t_count",
    "f_count",
    "in_use",
    "count",
    "sent",
    "responses",
    "sent_errors",
    "response_errors",
    "responses_to_freed",
    "mac_counter_high_water_mark",
    "negative_mac_counter_hits",
};

/// Tables of what only counts.
static constexpr std::string_view changing_sections[] = {"mac_scans", "times"};

static bool changes_by_itself(const Tree &tree, const TreeValue &value)
{
    if (std::find(std::begin(changing_keys), std::end(changing_keys), value.key) != std::end(changing_keys)) {
        return true;
    }
    for (std::uint32_t at = value.section; at != 0; at = tree.sections()[at].parent) {
        const std::string_view key = tree.sections()[at].key;
        if (std::find(std::begin(changing_sections), std::end(changing_sections), key) != std::end(changing_sections)) {
            return true;
        }
    }
    return false;
}

/// The places of a view by names that another view has for them, too: NPs go by their number, for there may be more or
/// fewer of them.
class Places
{
public:
    explicit Places(const Tree &tree) : tree_(tree)
    {
        for (std::uint32_t i = 0; i < tree.sections().size(); ++i) {
            sections_.push_back(name_of_section(i));
            if (!known_.insert(sections_.back()).second) { // show data may have two NPs of a number
                sections_.back() += '#' + std::to_string(tree.sections()[i].index);
                known_.insert(sections_.back());
            }
        }
        for (const TreeValue &value : tree.values()) {
            values_.try_emplace(name_of(value), &value);
        }
    }

    [[nodiscard]] std::string name_of(const TreeValue &value) const
    {
        return sections_[value.section] + '.' + std::string(value.key);
    }

    [[nodiscard]] const TreeValue *find(const std::string &name) const
    {
        const auto found = values_.find(name);
        return found == values_.end() ? nullptr : found->second;
    }

    /// The outermost section around one that this view does not have; the section 0 when it has them all.
    [[nodiscard]] std::uint32_t outermost_missing(const Places &other, std::uint32_t section) const
    {
        std::uint32_t missing = 0;
        for (std::uint32_t at = section; at != 0; at = other.tree_.sections()[at].parent) {
            missing = known_.contains(other.sections_[at]) ? missing : at;
        }
        return missing;
    }

private:
    std::string name_of_section(std::uint32_t section)
    {
        if (section == 0) {
            return {};
        }
        const TreeSection &at = tree_.sections()[section];
        std::string name = sections_[at.parent] + '.' + at.key;
        const bool is_np = at.is_element && at.np && !tree_.sections()[at.parent].np;
        if (at.is_element) {
            name += is_np ? "[NP" + std::to_string(*at.np) : '[' + std::to_string(at.index);
        }
        return name;
    }

    const Tree &tree_;
    std::vector<std::string> sections_; ///< names
    std::set<std::string> known_;
    std::unordered_map<std::string, const TreeValue *> values_;
};

/// Of a name or a word of flags that is not known, the number tells.
static std::string text_of_either(const TreeValue &value, const TreeValue &other)
{
    std::string text = text_of(value);
    if (value.text == other.text && value.has_number) {
        text += " (" + std::to_string(value.number) + ")";
    }
    return text;
}

static std::string hex_of(const ViewOf &view, const TreeValue &word)
{
    const bool is_there = word.place && word.place->offset + word.width <= view.received.size();
    const auto bytes =
        is_there ? view.received.subspan(word.place->offset, word.width) : std::span<const std::uint8_t>{};
    return "0x" + hex_of_bytes({bytes.begin(), bytes.end()});
}

static std::vector<std::string> names_without(std::span<const std::string_view> names,
                                              std::span<const std::string_view> others)
{
    std::vector<std::string> left;
    for (const std::string_view name : names) {
        if (std::find(others.begin(), others.end(), name) == others.end()) {
            left.emplace_back(name);
        }
    }
    return left;
}

static std::vector<Change> changes_of_word(const ViewOf &before, const TreeValue &old_word, const ViewOf &after,
                                           const TreeValue &new_word)
{
    const std::string old_bytes = hex_of(before, old_word);
    const std::string new_bytes = hex_of(after, new_word);
    if (old_bytes == new_bytes) {
        return {};
    }
    Change change{Change::changed, after.tree.path_of(new_word), old_bytes, new_bytes, {}, {}};
    const auto old_names = before.tree.flags_of(old_word);
    const auto new_names = after.tree.flags_of(new_word);
    change.flags_removed = names_without(old_names, new_names);
    change.flags_added = names_without(new_names, old_names);
    return {change};
}

static std::vector<Change> changes_of_value(const ViewOf &before, const TreeValue &old_value, const ViewOf &after,
                                            const TreeValue &new_value)
{
    if (old_value.is_word && new_value.is_word) {
        return changes_of_word(before, old_value, after, new_value);
    }
    const bool is_same = old_value.text == new_value.text && old_value.has_number == new_value.has_number &&
                         (!old_value.has_number || old_value.number == new_value.number);
    if (is_same) {
        return {};
    }
    return {{Change::changed,
             after.tree.path_of(new_value),
             text_of_either(old_value, new_value),
             text_of_either(new_value, old_value),
             {},
             {}}};
}

static std::string text_in(const ViewOf &view, const TreeValue &value)
{
    return value.is_word ? hex_of(view, value) : text_of(value);
}

/// What one view has and another does not: sections that are missing as a whole, and values.
static void add_missing(const ViewOf &view, const Places &places, const Places &others, bool all, Change::Kind kind,
                        std::vector<Change> &changes)
{
    std::set<std::uint32_t> told;
    for (const TreeValue &value : view.tree.values()) {
        if (others.find(places.name_of(value)) != nullptr || (!all && changes_by_itself(view.tree, value))) {
            continue;
        }
        const std::uint32_t section = others.outermost_missing(places, value.section);
        if (section != 0) {
            if (told.insert(section).second) {
                changes.push_back({kind, view.tree.path_of(section), "", "", {}, {}});
            }
            continue;
        }
        const std::string text = text_in(view, value);
        changes.push_back({kind,
                           view.tree.path_of(value),
                           kind == Change::removed ? text : "",
                           kind == Change::added ? text : "",
                           {},
                           {}});
    }
}

std::vector<Change> changes(const ViewOf &before, const ViewOf &after, bool all)
{
    const Places old_places(before.tree);
    const Places new_places(after.tree);
    std::vector<Change> found;
    for (const TreeValue &value : after.tree.values()) {
        const TreeValue *old_value = old_places.find(new_places.name_of(value));
        if (old_value != nullptr && (all || !changes_by_itself(after.tree, value))) {
            for (Change &change : changes_of_value(before, *old_value, after, value)) {
                found.push_back(std::move(change));
            }
        }
    }
    add_missing(after, new_places, old_places, all, Change::added, found);
    add_missing(before, old_places, new_places, all, Change::removed, found);
    return found;
}

} // namespace l2fib
