#include "client/check/object_check.h"

#include "client/check/hardware_checks.h"

namespace l2fib
{

/// What the screen says in place of a part: an NP's entry that could not be read.
void ObjectCheck::check_failures(const CheckedView &view)
{
    const auto failures = view.tree().failures();
    for (std::size_t i = 0; i < failures.size(); ++i) {
        const recording::FailureNote &failure = failures[i];
        const std::string party = party_of(view, view.tree().section_of_failure(i));
        Finding finding{};
        finding.level = Level::error;
        finding.what = "entry";
        finding.who = party + " shows none";
        finding.statements.push_back({{party}, failure.text, std::nullopt, true, failure.at, std::nullopt});
        finding.meaning = "Nothing is known of what this NP does with the object's traffic.";
        coverage_.add(std::move(finding));
    }
}

bool has_like_nps(const Object &object)
{
    const std::string_view name = object.name;
    return name == "ac" || name == "pw" || name == "bridge";
}

const std::vector<Finding> &ObjectCheck::check(const Object &object, const CheckedView &view)
{
    coverage_.begin(view.rows());
    facts_.begin(view, coverage_);
    nps_.begin(view, coverage_);
    check_failures(view);
    for (const Fact &fact : facts()) {
        if (fact.object == std::string_view(object.name)) {
            facts_.check(fact);
        }
    }
    for (const HardwareCheck &check : hardware_checks()) {
        if (check.object == nullptr || check.object == std::string_view(object.name)) {
            check.check(view, check, coverage_);
        }
    }
    if (has_like_nps(object)) {
        nps_.compare();
    }
    return coverage_.findings();
}

} // namespace l2fib
