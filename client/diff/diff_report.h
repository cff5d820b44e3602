// Prints what has changed, as text for people or as lines of JSON.
#pragma once

#include "client/diagnostics.h"
#include "client/diff/tree_difference.h"
#include "recording/json_writer.h"

namespace l2fib
{

/// An object of two files. One that only one of them has has one place.
struct ObjectChange {
    std::string kind; ///< by the name of its command
    std::string name;
    std::string before; ///< "FILE:LINE"
    std::string after;
    std::string not_compared; ///< why; empty when it was
    std::vector<Change> changes;
};

class DiffReport
{
public:
    explicit DiffReport(bool json) : json_(json) {}

    void add(const ObjectChange &object);
    void add_alike() { ++alike_; }

    /// The line at the end.
    void end();

    [[nodiscard]] ExitStatus status() const;

private:
    void write(const ObjectChange &object, const char *change);

    bool json_;
    recording::JsonWriter writer_{stdout};
    std::size_t alike_ = 0;
    std::size_t changed_ = 0;
    std::size_t added_ = 0;
    std::size_t removed_ = 0;
    std::size_t not_compared_ = 0;
};

} // namespace l2fib
