// All lines of JSON that the client prints of captures of every kind: what the schema and its document are made of.
#pragma once

#include "client/capture.h"
#include "recording/schema/members.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace l2fib
{

/// The lines of an object in a view.
struct ViewLines {
    std::string object;
    std::string view; ///< empty for an object without views
    std::string name; ///< "ac", or "ac private" where that is not its usual view
    recording::Members members;

    /// What the value at each path is: recording::LoggedValue::identity(). A path may have several, by what else is
    /// shown.
    std::map<std::string, std::set<std::string>> identities;
};

class Lines
{
public:
    /// Shows captures of all kinds in all ways, and replays the files of a directory of examples.
    explicit Lines(const std::string &examples);

    [[nodiscard]] const std::vector<ViewLines> &views() const { return views_; }

    /// All lines, without what `rp` and `hw` hold, which is another thing in each view.
    [[nodiscard]] const recording::Members &any() const { return any_; }

    // The same of one kind of lines.
    [[nodiscard]] const recording::Members &objects() const { return objects_; }
    [[nodiscard]] const recording::Members &bytes() const { return bytes_; }
    [[nodiscard]] const recording::Members &counts() const { return counts_; }

private:
    void add(const Capture &capture);
    void add_bytes(const Capture &capture);
    void add_replayed(const std::string &examples);
    void add_outline(recording::Members &kind, nlohmann::json line);
    ViewLines &view_of(const Capture &capture);
    void add_identities(ViewLines &view, const Capture &capture);

    std::vector<ViewLines> views_;
    recording::Members any_;
    recording::Members objects_;
    recording::Members bytes_;
    recording::Members counts_;
};

} // namespace l2fib
