#include "client/check/checked_object.h"

#include "client/diagnostics.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace l2fib
{

bool CheckedObject::disagrees() const
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding &finding) { return finding.level == Level::error; });
}

template <MaybeConst<Statement> Said>
void hand_members(Said &statement, const auto &function)
{
    function(statement.parties, statement.text, statement.number, statement.is_odd, statement.path, statement.bytes);
}

template <MaybeConst<Finding> Found>
void hand_members(Found &finding, const auto &function)
{
    function(finding.level, finding.what, finding.who, finding.meaning, finding.statements);
}

template <MaybeConst<CheckedObject> Object>
void hand_members(Object &object, const auto &function)
{
    // The kind is where it is in every process.
    function(object.file, object.line, object.kind, object.name, object.unchecked, object.findings);
}

void CheckedObject::hand_over(Parcel &parcel) const
{
    parcel.put(*this);
}

void CheckedObject::take_over(OpenedParcel &parcel)
{
    parcel.take(*this);
}

/// The text of the first value of a path; empty when the view has none.
static std::string text_at(const recording::Tree &tree, const char *path)
{
    const auto values = tree.values();
    const auto found = std::find_if(values.begin(), values.end(), [&](const recording::TreeValue &value) {
        return value.pattern == recording::pattern_of(path);
    });
    return found == values.end() ? std::string() : std::string(found->text);
}

static std::string id_of(const Capture &capture, std::optional<std::uint32_t> xid, const recording::Tree &tree)
{
    const std::string mac = text_at(tree, "rp.mac");
    if (!mac.empty()) {
        return mac + " bridge " + text_at(tree, "rp.bridge_id");
    }
    if (capture.object->name == std::string_view("bridge")) {
        return text_at(tree, "rp.bridge_id");
    }
    std::array<char, sizeof "0xffffffff"> digits{};
    const bool is_report = capture.object->has_views() && capture.shown_view()->flags == L2FIB_VIEW_INCONSISTENT;
    if (xid && !is_report) { // a report has other bytes there
        std::snprintf(digits.data(), digits.size(), "0x%08x", *xid);
    }
    return digits.data();
}

std::string name_of(const Capture &capture, std::optional<std::uint32_t> xid, const recording::Tree &tree)
{
    std::string name = capture.object->name;
    const std::string id = id_of(capture, xid, tree);
    name += id.empty() ? "" : " " + id;
    name += capture.node == 0 ? "" : " node " + std::to_string(capture.node);
    if (capture.object->has_views()) {
        name += std::string(" ") + capture.direction->name;
        name +=
            capture.shown_view() == capture.object->default_view ? "" : std::string(" ") + capture.shown_view()->name;
    }
    return name;
}

std::string reason_not_to_check(const recording::Tree &tree, std::uint32_t status)
{
    const auto failures = tree.failures();
    for (std::size_t i = 0; i < failures.size(); ++i) {
        if (failures[i].there && failures[i].needed) {
            return std::to_string(*failures[i].there) + " of " + std::to_string(*failures[i].needed) + " bytes";
        }
        if (!tree.sections()[tree.section_of_failure(i)].np) {
            return failures[i].text;
        }
    }
    return status == 0 ? "" : text_of_status(status);
}

} // namespace l2fib
