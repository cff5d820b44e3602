#include "recording/schema/document.h"

#include <algorithm>
#include <istream>

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

    auto operator<=>(const Row &) const = default;
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

/// The rows of the members at a path.
class Walk
{
public:
    Walk(Rows &rows, Meanings &meanings, std::string where, const ViewLines *view)
        : rows_(rows), meanings_(meanings), where_(std::move(where)), view_(view)
    {
    }

    void walk(const std::string &path, const Members &members)
    {
        for (const auto &[key, member] : members.members()) {
            const std::string member_path = path.empty() ? key : path + '.' + key;
            if (!is_companion(key, members.members())) {
                rows_[row(member_path, key, type_of(key, members.members()))].push_back(where_);
            }
            const bool has_elements = member.elements() != nullptr;
            walk(member_path + (has_elements ? "[]" : ""), has_elements ? *member.elements() : member);
        }
    }

private:
    Row row(const std::string &path, const std::string &key, const std::string &type)
    {
        Row row{path, type, {}, {}};
        const auto known = view_ == nullptr ? nothing_.end() : view_->identities.find(path);
        if (meanings_.has(path)) {
            row.meaning = meanings_.of(path);
        } else if (view_ == nullptr || known == view_->identities.end()) {
            row.meaning = meanings_.of(key + (type == "object" ? "{}" : type == "array of objects" ? "[]" : ""));
        }
        if (view_ == nullptr || known == view_->identities.end()) {
            return row;
        }
        std::set<std::string> meanings;
        for (const std::string &identity : known->second) {
            const std::string field = identity.substr(0, identity.find(':'));
            if (field.find('.') != std::string::npos) {
                row.fields += (row.fields.empty() ? "`" : ", `") + field + '`';
            }
            if (!meanings_.has(path)) {
                meanings.insert(meanings_.of(identity));
            }
        }
        for (const std::string &meaning : meanings) {
            row.meaning += (row.meaning.empty() ? "" : "; ") + meaning;
        }
        return row;
    }

    Rows &rows_;
    Meanings &meanings_;
    std::string where_;
    const ViewLines *view_;
    const std::map<std::string, std::set<std::string>> nothing_;
};

std::string table_of_paths(const Lines &lines, Meanings &meanings)
{
    Rows rows;
    Walk(rows, meanings, "objects", nullptr).walk("", lines.objects());
    Walk(rows, meanings, "`--bytes`", nullptr).walk("", lines.bytes());
    Walk(rows, meanings, "`--count`", nullptr).walk("", lines.counts());
    for (const ViewLines &view : lines.views()) {
        for (const char *part : {"rp", "hw"}) {
            if (const auto found = view.members.members().find(part); found != view.members.members().end()) {
                Walk(rows, meanings, view.name, &view).walk(part, found->second);
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
