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

static void put(Parcel &parcel, const Finding &finding)
{
    parcel.put(finding.level);
    parcel.put(finding.what);
    parcel.put(finding.who);
    parcel.put(finding.meaning);
    parcel.put(finding.statements.size());
    for (const Statement &statement : finding.statements) {
        parcel.put(statement.parties);
        parcel.put(statement.text);
        parcel.put(statement.number);
        parcel.put(statement.is_odd);
        parcel.put(statement.path);
        parcel.put(statement.bytes);
    }
}

static void take(OpenedParcel &parcel, Finding &finding)
{
    parcel.take(finding.level);
    parcel.take(finding.what);
    parcel.take(finding.who);
    parcel.take(finding.meaning);
    finding.statements.resize(parcel.taken<std::size_t>());
    for (Statement &statement : finding.statements) {
        parcel.take(statement.parties);
        parcel.take(statement.text);
        parcel.take(statement.number);
        parcel.take(statement.is_odd);
        parcel.take(statement.path);
        parcel.take(statement.bytes);
    }
}

void CheckedObject::hand_over(Parcel &parcel) const
{
    parcel.put(file);
    parcel.put(line);
    parcel.put(kind); // which is where it is in every process
    parcel.put(name);
    parcel.put(unchecked);
    parcel.put(findings.size());
    for (const Finding &finding : findings) {
        put(parcel, finding);
    }
}

void CheckedObject::take_over(OpenedParcel &parcel)
{
    parcel.take(file);
    parcel.take(line);
    parcel.take(kind);
    parcel.take(name);
    parcel.take(unchecked);
    findings.resize(parcel.taken<std::size_t>());
    for (Finding &finding : findings) {
        take(parcel, finding);
    }
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
