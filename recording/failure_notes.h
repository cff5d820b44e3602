// What the text says about what is missing.
#pragma once

#include "recording/recorder.h"

#include <optional>
#include <string>
#include <vector>

namespace recording
{

struct FailureNote {
    std::string at;                     ///< the part of the view: "hw.nps[2]"; empty for all of it
    std::string text;                   ///< of the screen
    std::optional<std::uint64_t> there; ///< bytes of show data, where the text says it
    std::optional<std::uint64_t> needed;
};

/// Collects the failures of a view.
class FailureNotes
{
public:
    void clear() { notes_.clear(); }
    void open(std::string at);
    [[nodiscard]] bool is_open() const { return is_open_; }

    /// A number in the text of the open failure, after its label.
    void take(const Value &value);

    void close(std::string_view text);

    [[nodiscard]] std::span<const FailureNote> notes() const { return notes_; }

private:
    std::vector<FailureNote> notes_;
    bool is_open_ = false;
};

} // namespace recording
