#include "recording/schema/document.h"

#include <algorithm>
#include <istream>
#include <tuple>

namespace l2fib
{

using recording::Members;

Meanings::Meanings(std::istream &table)
{
    for (std::string line; std::getline(table, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) {
            meanings_[line.substr(0, tab)] = line.substr(tab + 1);
        }
    }
}

std::string Meanings::of(const std::string &identity)
{
    if (!has(identity)) {
        missing_.insert(identity);
        return {};
    }
    used_.insert(identity);
    return meanings_.at(identity);
}

std::vector<std::string> Meanings::complaints() const
{
    std::vector<std::string> complaints;
    for (const std::string &identity : missing_) {
        complaints.push_back("no meaning: " + identity);
    }
    for (const auto &[identity, meaning] : meanings_) {
        if (!used_.contains(identity)) {
            complaints.push_back("a meaning of nothing: " + identity);
        }
    }
    return complaints;
}

/// A row of the table, but for where its path is.
struct Row {
    std::string path;
    std::string type;
    std::string fields;
    std::string meaning;

    bool operator<(const Row &other) const
    {
        return std::tie(path, type, fields, meaning) < std::tie(other.path, other.type, other.fields, other.meaning);
    }
};

/// Rows, each with the lines that it is about.
using Rows = std::map<Row, std::vector<std::string>>;

/// What goes with a member under a key of its own.
static constexpr const char *companions[] = {"_hex", "_raw", "_unnamed"};

static bool is_companion(const std::string &key, const std::map<std::string, Members> &members)
{
    return std::any_of(std::begin(companions), std::end(companions), [&](const std::string &suffix) {
        return key.ends_with(suffix) && members.contains(key.substr(0, key.size() - suffix.size()));
    });
}

static std::string type_of(const std::string &key, const std::map<std::string, Members> &members)
{
    std::string type = members.at(key).type();
    for (const char *suffix : companions) {
        if (const auto found = members.find(key + suffix); found != members.end()) {
            type += ", `" + (suffix + ("` " + found->second.type()));
        }
    }
    return type;
}

using Identities = std::map<std::string, std::set<std::string>>;

/// The rows of the members at a path.
class Walk
{
public:
    Walk(Rows &rows, Meanings &meanings, std::string where, const Identities &identities)
        : rows_(rows), meanings_(meanings), where_(std::move(where)), identities_(identities)
    {
    }

    void walk(const std::string &path, const Members &members)
    {
        for (const auto &[key, member] : members.members()) {
            std::string member_path = path;
            member_path += path.empty() ? "" : ".";
            member_path += key;
            if (!is_companion(key, members.members())) {
                rows_[row(member_path, key, type_of(key, members.members()))].push_back(where_);
            }
            if (const Members *elements = member.elements()) {
                walk(member_path + "[]", *elements);
            } else {
                walk(member_path, member);
            }
        }
    }

private:
    [[nodiscard]] std::set<std::string> identities_at(const std::string &path, const std::string &key,
                                                      const std::string &type) const
    {
        const auto known = identities_.find(path);
        if (known != identities_.end()) {
            return known->second;
        }
        return {key + (type == "object" ? "{}" : type == "array of objects" ? "[]" : "")};
    }

    Row row(const std::string &path, const std::string &key, const std::string &type)
    {
        Row row{path, type, {}, {}};
        std::set<std::string> meanings;
        for (const std::string &identity : identities_at(path, key, type)) {
            if (identity.find('.') != std::string::npos) {
                row.fields += row.fields.empty() ? "`" : ", `";
                row.fields += identity.substr(0, identity.find(':')) + '`';
            }
            meanings.insert(meanings_.of(meanings_.has(path) ? path : identity));
        }
        for (const std::string &meaning : meanings) {
            row.meaning += row.meaning.empty() ? "" : "; ";
            row.meaning += meaning;
        }
        return row;
    }

    Rows &rows_;
    Meanings &meanings_;
    std::string where_;
    const Identities &identities_;
};

std::string table_of_paths(const Lines &lines, Meanings &meanings)
{
    Rows rows;
    const Identities none;
    Walk(rows, meanings, "objects", none).walk("", lines.objects());
    Walk(rows, meanings, "`--bytes`", none).walk("", lines.bytes());
    Walk(rows, meanings, "`--count`", none).walk("", lines.counts());
    for (const ViewLines &view : lines.views()) {
        for (const char *part : {"rp", "hw"}) {
            if (const auto found = view.members.members().find(part); found != view.members.members().end()) {
                Walk(rows, meanings, view.name, view.identities).walk(part, found->second);
            }
        }
    }
    std::string table = "| path | type | of | field | meaning |\n|---|---|---|---|---|\n";
    for (const auto &[row, views] : rows) {
        table += "| `" + row.path + "` | " + row.type + " | ";
        for (const std::string &view : views) {
            table += (&view == views.data() ? "" : ", ") + view;
        }
        table += " | " + row.fields + " | " + row.meaning + " |\n";
    }
    return table;
}

} // namespace l2fib
