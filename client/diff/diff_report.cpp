#include "client/diff/diff_report.h"

#include <algorithm>
#include <cstdio>

namespace l2fib
{

/// "-VPLS +Unbound", "None -> VFI Enabled"
static std::string text_of(const Change &change)
{
    std::string text;
    for (const std::string &name : change.flags_removed) {
        text += (text.empty() ? "-" : " -") + name;
    }
    for (const std::string &name : change.flags_added) {
        text += (text.empty() ? "+" : " +") + name;
    }
    if (!text.empty()) {
        return text;
    }
    switch (change.kind) {
    case Change::changed: return change.before + " -> " + change.after;
    case Change::added: return change.after.empty() ? "added" : "added: " + change.after;
    case Change::removed: break;
    }
    return change.before.empty() ? "removed" : "removed: " + change.before;
}

static void print(const ObjectChange &object, const char *change)
{
    std::string places = object.before;
    places += object.before.empty() || object.after.empty() ? "" : ", ";
    places += object.after;
    std::printf("%s: %s (%s)%s%s\n", object.name.c_str(), change, places.c_str(),
                object.not_compared.empty() ? "" : ": ", object.not_compared.c_str());
    std::size_t widest = 0;
    for (const Change &each : object.changes) {
        widest = std::max(widest, each.path.size());
    }
    for (const Change &each : object.changes) {
        std::printf("    %-*s  %s\n", static_cast<int>(widest), each.path.c_str(), text_of(each).c_str());
    }
}

static void write_names(recording::JsonWriter &writer, const char *key, const std::vector<std::string> &names)
{
    if (names.empty()) {
        return;
    }
    writer.open_array(key);
    for (const std::string &name : names) {
        writer.element(std::string_view(name));
    }
    writer.close_array();
}

void DiffReport::write(const ObjectChange &object, const char *change)
{
    constexpr const char *kinds[] = {"changed", "added", "removed"};
    const auto member = [this](const char *key, const std::string &text) {
        if (!text.empty()) {
            writer_.member(key, std::string_view(text));
        }
    };
    writer_.open_line();
    writer_.member("format", std::uint64_t{1});
    member("object", object.kind);
    member("name", object.name);
    writer_.member("change", std::string_view(change));
    member("before", object.before);
    member("after", object.after);
    member("not_compared", object.not_compared);
    for (const Change &each : object.changes) {
        writer_.open_element("changes");
        member("path", each.path);
        writer_.member("change", std::string_view(kinds[each.kind]));
        member("before", each.before);
        member("after", each.after);
        write_names(writer_, "flags_removed", each.flags_removed);
        write_names(writer_, "flags_added", each.flags_added);
        writer_.close_object();
    }
    writer_.close_line();
}

void DiffReport::add(const ObjectChange &object)
{
    const char *change = "changed";
    std::size_t *count = &changed_;
    if (!object.not_compared.empty()) {
        change = "not compared";
        count = &not_compared_;
    } else if (object.before.empty()) {
        change = "added";
        count = &added_;
    } else if (object.after.empty()) {
        change = "removed";
        count = &removed_;
    }
    ++*count;
    json_ ? write(object, change) : print(object, change);
}

void DiffReport::end()
{
    if (!json_) {
        std::printf("%zu changed, %zu added, %zu removed, %zu alike", changed_, added_, removed_, alike_);
        std::printf(not_compared_ == 0 ? ".\n" : ", %zu not compared.\n", not_compared_);
        return;
    }
    writer_.open_line();
    writer_.member("format", std::uint64_t{1});
    writer_.member("changed", std::uint64_t{changed_});
    writer_.member("added", std::uint64_t{added_});
    writer_.member("removed", std::uint64_t{removed_});
    writer_.member("alike", std::uint64_t{alike_});
    writer_.member("not_compared", std::uint64_t{not_compared_});
    writer_.close_line();
    writer_.flush();
}

ExitStatus DiffReport::status() const
{
    if (not_compared_ != 0) {
        return unusable;
    }
    return changed_ + added_ + removed_ == 0 ? shown : view_failed;
}

} // namespace l2fib
