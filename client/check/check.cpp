#include "client/check/check.h"

#include "client/check/across.h"
#include "client/check/object_check.h"
#include "client/check/report.h"
#include "client/check/rules.h"
#include "client/rendering.h"

#include <algorithm>
#include <map>

namespace l2fib
{

/// What several captures of an object have in common: with a file taken after the other, what is in both. What was on
/// its way from the RP to the NPs when one was taken is not in the other.
class Repeated
{
public:
    void add(const CheckedObject &object, std::span<const std::uint8_t> received);

    /// Reports what is in all files that have the object.
    void report(CheckReport &report);

private:
    struct FilesWithFinding {
        std::size_t count = 0;
        std::size_t last =
            0; ///< by its number among those that have the object; a file may have several captures of it
    };

    struct Seen {
        CheckedObject object; ///< as it was captured last
        std::vector<std::uint8_t> received;
        std::string file;
        std::size_t files = 0;
        std::map<std::string, FilesWithFinding> findings;
    };

    std::map<std::string, Seen> objects_;
    std::vector<std::string> in_order_;
};

/// A finding, as it is again in another capture.
static std::string identity_of(const Finding &finding)
{
    return finding.what + '\n' + finding.who;
}

void Repeated::add(const CheckedObject &object, std::span<const std::uint8_t> received)
{
    const auto [at, is_new] = objects_.try_emplace(object.name);
    Seen &seen = at->second;
    if (is_new) {
        in_order_.push_back(object.name);
    }
    if (seen.file != object.file) {
        seen.file = object.file; // a file that is named twice is read twice, and is still one
        ++seen.files;
    }
    for (const Finding &finding : object.findings) {
        FilesWithFinding &files = seen.findings[identity_of(finding)];
        files.count += files.last == seen.files ? 0 : 1;
        files.last = seen.files;
    }
    seen.object = object;
    seen.received.clear();
    if (!object.findings.empty()) {
        seen.received.assign(received.begin(), received.end());
    }
}

void Repeated::report(CheckReport &report)
{
    for (const std::string &name : in_order_) {
        Seen &seen = objects_[name];
        std::erase_if(seen.object.findings,
                      [&](const Finding &finding) { return seen.findings[identity_of(finding)].count < seen.files; });
        report.object(seen.object, seen.received);
    }
}

class Check : public BlockWork
{
public:
    /// Of several processes, one compares what several captures of an object have in common.
    explicit Check(const CheckOptions &options, bool compares = true)
        : options_(options), compares_(compares),
          files_(
              options.files, options.selection,
              [this](Capture &capture, const CapturePlace &place) { return take(capture, place); },
              [this] { report_.flush(); }),
          report_(options.json)
    {
    }

    ExitStatus run();

    std::size_t run(const Block &block, LineCounter &counter) override { return files_.run(block, counter); }
    void flush() override { report_.flush(); }
    void hand_over(Parcel &parcel) override;
    void take_over(OpenedParcel &parcel) override;

private:
    bool take(Capture &capture, const CapturePlace &place);

    const CheckOptions &options_;
    bool compares_;
    CaptureFiles files_;
    CheckReport report_;
    recording::Tree tree_;
    std::vector<std::uint8_t> received_;
    CheckedView view_;
    ObjectCheck object_check_;
    AcrossObjects across_;
    Repeated repeated_;
    Parcel repeated_elsewhere_; ///< for the process that compares
};

bool Check::take(Capture &capture, const CapturePlace &place)
{
    received_ = capture.show_data;
    const auto xid = capture.object->xid(received_);
    tree_.begin(capture.show_data);
    const std::uint32_t status = record_view(capture, tree_);
    CheckedObject object;
    object.file = place.file;
    object.line = place.line();
    object.kind = capture.object->name;
    object.name = name_of(capture, xid, tree_);
    object.unchecked = reason_not_to_check(tree_, status);
    if (object.unchecked.empty()) {
        view_.begin(tree_, received_, capture.byte_order->order);
        object.findings = object_check_.check(*capture.object, view_);
        across_.add(capture, xid, view_, place);
    }
    if (!options_.all) {
        std::erase_if(object.findings, [](const Finding &finding) { return finding.level == Level::may_differ; });
    }
    if (options_.files.size() <= 1) {
        report_.object(object, received_);
    } else if (compares_) {
        repeated_.add(object, received_);
    } else {
        object.hand_over(repeated_elsewhere_);
        repeated_elsewhere_.put(object.findings.empty() ? std::vector<std::uint8_t>() : received_);
    }
    return true;
}

void Check::hand_over(Parcel &parcel)
{
    files_.hand_over(parcel);
    report_.hand_over(parcel);
    across_.hand_over(parcel);
    parcel.put(repeated_elsewhere_.bytes());
    repeated_elsewhere_.clear();
}

void Check::take_over(OpenedParcel &parcel)
{
    files_.take_over(parcel);
    report_.take_over(parcel);
    across_.take_over(parcel);
    const auto repeated = parcel.taken<std::string>();
    for (OpenedParcel objects(repeated); !objects.is_empty();) {
        CheckedObject object;
        object.take_over(objects);
        objects.take(received_);
        repeated_.add(object, received_);
    }
}

ExitStatus Check::run()
{
    files_.read(options_.jobs, *this, [this] { return std::make_unique<Check>(options_, false); });
    repeated_.report(report_);
    report_.across(across_.findings());
    report_.end();
    files_.report_no_match();
    return output_arrived() ? std::max(report_.status(), files_.status()) : unusable;
}

ExitStatus check(const CheckOptions &options)
{
    if (options.list_rules) {
        print_rules();
        return output_arrived() ? shown : unusable;
    }
    return Check(options).run();
}

} // namespace l2fib
