#include "recording/failure_notes.h"

#include <algorithm>

namespace recording
{

void FailureNotes::open(std::string at)
{
    is_open_ = true;
    notes_.push_back({std::move(at), {}, {}, {}});
}

void FailureNotes::take(const Value &value)
{
    const std::string_view label = value.label;
    if (label.ends_with("size is ") || label.ends_with("size: ") || label.ends_with("size wrong ")) {
        notes_.back().there = value.number;
    } else if (label.ends_with("expecting at least ") || label.ends_with("expecting ")) {
        notes_.back().needed = value.number;
    }
}

void FailureNotes::close(std::string_view text)
{
    is_open_ = false;
    const std::size_t begin = std::min(text.find_first_not_of(" \n"), text.size());
    notes_.back().text = text.substr(begin, text.find_last_not_of(" \n") + 1 - begin);
}

} // namespace recording
