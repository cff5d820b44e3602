#include "client/check/across.h"

#include "client/check/statements.h"
#include "rp/names.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace l2fib
{

using recording::pattern_of;
using recording::TreeValue;

static constexpr const char *all_rules[] = {
    "a member of a bridge is an AC or PW of that bridge",
    "a MAC address leads to an AC or PW that exists",
    "the bridge of a bound AC or PW is bound",
};

std::span<const char *const> AcrossObjects::rules()
{
    return all_rules;
}

/// A number of the RP's, shown or not.
static std::optional<std::uint64_t> of_rp(const CheckedView &view, std::string_view key)
{
    if (const TreeValue *value = view.first(pattern_of(key, pattern_of("rp.")))) {
        return value->number;
    }
    const auto held = view.field(pattern_of("rp"), key);
    return held ? std::optional(held->number) : std::nullopt;
}

std::uint32_t AcrossObjects::number_of(const std::string &file)
{
    if (files_.empty() || files_.back() != file) {
        files_.push_back(file);
    }
    return static_cast<std::uint32_t>(files_.size() - 1);
}

void AcrossObjects::add(const Capture &capture, std::optional<std::uint32_t> xid, const CheckedView &view,
                        const CapturePlace &place)
{
    const Source source{number_of(place.file), static_cast<std::uint32_t>(place.line())};
    const std::string_view object = capture.object->name;
    if ((object == "ac" || object == "pw") && xid) {
        add_port(capture, *xid, view, source);
    } else if (object == "bridge") {
        add_bridge(capture, view, source);
    } else if (object == "mac") {
        add_mac(capture, view, source);
    }
}

void AcrossObjects::add_port(const Capture &capture, std::uint32_t xid, const CheckedView &view, Source source)
{
    const auto service = of_rp(view, "service");
    const auto state = of_rp(view, "state");
    const auto bridge = of_rp(view, "bridge_id");
    if (!service || !state || !bridge) {
        return;
    }
    ports_.push_back({capture.node, xid, static_cast<std::uint32_t>(*bridge), *service == service_vpls,
                      *state == state_bound, capture.object->name == std::string_view("ac"), source});
    nodes_with_ports_.insert(capture.node);
}

void AcrossObjects::add_bridge(const Capture &capture, const CheckedView &view, Source source)
{
    const auto id = of_rp(view, "bridge_id");
    const auto state = of_rp(view, "state");
    if (!id || !state) {
        return;
    }
    const auto bridge = static_cast<std::uint32_t>(*id);
    bridges_.push_back({capture.node, bridge, *state == state_bound, source});
    if (const auto bvi = of_rp(view, "bvi_xid"); bvi && *bvi != 0) {
        bvis_.emplace(capture.node, static_cast<std::uint32_t>(*bvi));
    }
    for (const auto pattern : {pattern_of("hw.nps[].members[].xid"), pattern_of("hw.pw_over_bvi_members[].xid")}) {
        view.for_each(pattern, [&](const TreeValue &xid) {
            remember({capture.node, bridge, static_cast<std::uint32_t>(xid.number), true, source});
        });
    }
}

void AcrossObjects::add_mac(const Capture &capture, const CheckedView &view, Source source)
{
    const auto bridge = of_rp(view, "bridge_id");
    const auto xid = of_rp(view, "xid");
    const TreeValue *in_hardware = view.first(pattern_of("hw.xid"));
    const bool agrees = in_hardware == nullptr || !xid || in_hardware->number == *xid; // or it is told already
    if (bridge && xid && *xid != 0 && agrees) {
        remember({capture.node, static_cast<std::uint32_t>(*bridge), static_cast<std::uint32_t>(*xid), false, source});
    }
}

/// Keeps each reference once: members come in copies, on each NP and from both sides of the bridge.
void AcrossObjects::remember(const Reference &reference)
{
    constexpr std::size_t few = 1024;
    references_.push_back(reference);
    if (references_.size() >= 2 * sorted_ + few) {
        std::stable_sort(references_.begin(), references_.end());
        references_.erase(std::unique(references_.begin(), references_.end()), references_.end());
        sorted_ = references_.size();
    }
}

void AcrossObjects::hand_over(Parcel &parcel)
{
    parcel.put(files_);
    parcel.put(ports_);
    parcel.put(bridges_);
    parcel.put(references_);
    parcel.put(bvis_.size());
    for (const auto &[node, xid] : bvis_) {
        parcel.put(node);
        parcel.put(xid);
    }
    *this = {};
}

void AcrossObjects::take_over(OpenedParcel &parcel)
{
    std::vector<std::uint32_t> numbers; // of the files, here
    for (const std::string &file : parcel.taken<std::vector<std::string>>()) {
        numbers.push_back(number_of(file));
    }
    for (Port &port : parcel.taken<std::vector<Port>>()) {
        port.source.file = numbers[port.source.file];
        nodes_with_ports_.insert(port.node);
        ports_.push_back(port);
    }
    for (Bridge &bridge : parcel.taken<std::vector<Bridge>>()) {
        bridge.source.file = numbers[bridge.source.file];
        bridges_.push_back(bridge);
    }
    for (Reference &reference : parcel.taken<std::vector<Reference>>()) {
        reference.source.file = numbers[reference.source.file];
        remember(reference);
    }
    for (auto bvis = parcel.taken<std::size_t>(); bvis != 0; --bvis) {
        const auto node = parcel.taken<std::uint32_t>();
        bvis_.emplace(node, parcel.taken<std::uint32_t>());
    }
}

const AcrossObjects::Port *AcrossObjects::port(std::uint32_t node, std::uint32_t xid) const
{
    const auto found = std::lower_bound(ports_.begin(), ports_.end(), std::pair(node, xid),
                                        [](const Port &port, const std::pair<std::uint32_t, std::uint32_t> &wanted) {
                                            return std::pair(port.node, port.xid) < wanted;
                                        });
    return found != ports_.end() && found->node == node && found->xid == xid ? &*found : nullptr;
}

std::string AcrossObjects::text_of(const Source &source) const
{
    return files_[source.file] + ":" + std::to_string(source.line);
}

static std::string hex(std::uint32_t xid)
{
    std::array<char, sizeof "0xffffffff"> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%08x", xid);
    return digits.data();
}

static Finding finding_of(const char *what, std::string who, const char *meaning)
{
    Finding finding{};
    finding.level = Level::error;
    finding.what = what;
    finding.who = std::move(who);
    finding.meaning = meaning;
    return finding;
}

static Statement statement_of(std::string party, std::string text, bool is_odd)
{
    return {{std::move(party)}, std::move(text), std::nullopt, is_odd, "", std::nullopt};
}

void AcrossObjects::check_reference(const Reference &reference, std::vector<Finding> &findings) const
{
    // A file without any AC or PW of the node is not one that they could be missing in.
    if (!nodes_with_ports_.contains(reference.node) || bvis_.contains({reference.node, reference.xid})) {
        return;
    }
    const Port *found = port(reference.node, reference.xid);
    const std::string bridge = std::to_string(reference.bridge);
    if (found == nullptr) {
        Finding finding =
            reference.is_member
                ? finding_of("member of bridge", hex(reference.xid) + " of bridge " + bridge + " is no AC or PW",
                             "Frames are flooded to a member that is gone, or its capture is missing.")
                : finding_of("MAC address", hex(reference.xid) + " is no AC or PW",
                             "Frames to the address are sent to a port that is gone, or its capture is missing.");
        finding.statements.push_back(statement_of(text_of(reference.source), hex(reference.xid), true));
        findings.push_back(std::move(finding));
    } else if (reference.is_member && found->bridge != reference.bridge) {
        Finding finding = finding_of("member of bridge", hex(reference.xid) + " is of another bridge",
                                     "Frames are flooded from one bridge into another.");
        finding.statements.push_back(statement_of(text_of(reference.source), "bridge " + bridge, false));
        finding.statements.push_back(
            statement_of(text_of(found->source), "bridge " + std::to_string(found->bridge), true));
        findings.push_back(std::move(finding));
    }
}

void AcrossObjects::check_bridge_of(const Port &port, std::vector<Finding> &findings) const
{
    const auto found =
        std::lower_bound(bridges_.begin(), bridges_.end(), std::pair(port.node, port.bridge),
                         [](const Bridge &bridge, const std::pair<std::uint32_t, std::uint32_t> &wanted) {
                             return std::pair(bridge.node, bridge.id) < wanted;
                         });
    const bool is_known = found != bridges_.end() && found->node == port.node && found->id == port.bridge;
    if (!port.is_vpls || !port.is_bound || !is_known || found->is_bound) {
        return;
    }
    Finding finding =
        finding_of("bridge", std::string(port.is_ac ? "ac " : "pw ") + hex(port.xid) + " is bound, its bridge is not",
                   "Frames that come in are dropped: the bridge does not forward.");
    finding.statements.push_back(statement_of(text_of(port.source), "Bound", false));
    finding.statements.push_back(statement_of(text_of(found->source), "bridge " + std::to_string(port.bridge), true));
    findings.push_back(std::move(finding));
}

/// Sorts rows by a key, and keeps the last of each.
template <class Row, class Key>
static void keep_last(std::vector<Row> &rows, const Key &key)
{
    std::stable_sort(rows.begin(), rows.end(), [&](const Row &a, const Row &b) { return key(a) < key(b); });
    const auto kept =
        std::unique(rows.rbegin(), rows.rend(), [&](const Row &a, const Row &b) { return key(a) == key(b); });
    rows.erase(rows.begin(), kept.base());
}

std::vector<Finding> AcrossObjects::findings()
{
    keep_last(ports_, [](const Port &port) { return std::pair(port.node, port.xid); });
    keep_last(bridges_, [](const Bridge &bridge) { return std::pair(bridge.node, bridge.id); });
    std::stable_sort(references_.begin(), references_.end());
    references_.erase(std::unique(references_.begin(), references_.end()), references_.end());
    std::vector<Finding> findings;
    for (const Reference &reference : references_) {
        check_reference(reference, findings);
    }
    for (const Port &port : ports_) {
        check_bridge_of(port, findings);
    }
    return findings;
}

} // namespace l2fib
