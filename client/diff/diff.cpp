#include "client/diff/diff.h"

#include "client/check/checked_object.h"
#include "client/diff/diff_report.h"
#include "client/rendering.h"

#include <algorithm>
#include <unordered_map>

namespace l2fib
{

/// A view that has been taken down.
struct Taken {
    void take(Capture &capture)
    {
        received = capture.show_data;
        const auto xid = capture.object->xid(received);
        tree.begin(capture.show_data);
        const std::uint32_t status = record_view(capture, tree);
        name = name_of(capture, xid, tree);
        incomplete = reason_not_to_check(tree, status);
    }

    std::vector<std::uint8_t> received;
    recording::Tree tree;
    std::string name;
    std::string incomplete; ///< why the view shows less than there is
};

class Diff
{
public:
    explicit Diff(const DiffOptions &options) : options_(options), report_(options.json) {}

    ExitStatus run();

private:
    struct Earlier {
        Capture capture;
        std::string place;
        bool is_paired = false;
    };

    bool keep(Capture &capture, const CapturePlace &place);
    bool compare(Capture &capture, const CapturePlace &place);
    void compare(Earlier &earlier, const CapturePlace &place);
    void report_removed();

    const DiffOptions &options_;
    DiffReport report_;
    std::vector<Earlier> earlier_;
    std::unordered_map<std::string, std::vector<std::size_t>> by_name_; ///< those not paired yet, the last first
    std::unordered_map<std::string, std::size_t> next_;
    Taken before_;
    Taken after_;
};

/// Captures of the first file are kept as they are, without what their views say.
bool Diff::keep(Capture &capture, const CapturePlace &place)
{
    Earlier earlier{capture, place.text()};
    before_.take(capture);
    by_name_[before_.name].push_back(earlier_.size());
    earlier_.push_back(std::move(earlier));
    return true;
}

bool Diff::compare(Capture &capture, const CapturePlace &place)
{
    after_.take(capture);
    const auto found = by_name_.find(after_.name);
    std::size_t &next = next_[after_.name];
    if (found == by_name_.end() || next == found->second.size()) {
        report_.add({capture.object->name, after_.name, "", place.text(), "", {}});
        return true;
    }
    compare(earlier_[found->second[next++]], place);
    return true;
}

void Diff::compare(Earlier &earlier, const CapturePlace &place)
{
    earlier.is_paired = true;
    if (earlier.capture.show_data == after_.received) {
        return report_.add_alike();
    }
    before_.take(earlier.capture);
    ObjectChange change{earlier.capture.object->name, after_.name, earlier.place, place.text(), "", {}};
    change.not_compared = before_.incomplete.empty() ? after_.incomplete : before_.incomplete;
    if (change.not_compared.empty()) {
        change.changes = changes({before_.tree, before_.received}, {after_.tree, after_.received}, options_.all);
        if (change.changes.empty()) {
            return report_.add_alike();
        }
    }
    report_.add(change);
}

void Diff::report_removed()
{
    for (Earlier &earlier : earlier_) {
        if (!earlier.is_paired) {
            before_.take(earlier.capture);
            report_.add({earlier.capture.object->name, before_.name, earlier.place, "", "", {}});
        }
    }
}

ExitStatus Diff::run()
{
    CaptureFiles before({options_.before}, options_.selection,
                        [this](Capture &capture, const CapturePlace &place) { return keep(capture, place); });
    before.read();
    CaptureFiles after({options_.after}, options_.selection,
                       [this](Capture &capture, const CapturePlace &place) { return compare(capture, place); });
    after.read();
    report_removed();
    report_.end();
    after.report_no_match();
    const ExitStatus files = std::max(before.status(), after.status());
    return output_arrived() ? std::max(report_.status(), files) : unusable;
}

ExitStatus diff(const DiffOptions &options)
{
    return Diff(options).run();
}

} // namespace l2fib
