// What is different in two views of an object.
#pragma once

#include "recording/tree.h"

#include <string>
#include <vector>

namespace l2fib
{

struct Change {
    enum Kind : std::uint8_t { changed, added, removed };

    Kind kind;
    std::string path; ///< in the JSON of the view that has it; of a section for all that is in it
    std::string before;
    std::string after;
    std::vector<std::string> flags_removed; ///< names, when it is a word of flags
    std::vector<std::string> flags_added;
};

/// A view, and its show data as received.
struct ViewOf {
    const recording::Tree &tree;
    std::span<const std::uint8_t> received;
};

/// The changes in the order of the later view, then what is gone. Without `all`, counters, pointers and times are left
/// out, which change by themselves.
std::vector<Change> changes(const ViewOf &before, const ViewOf &after, bool all);

} // namespace l2fib
