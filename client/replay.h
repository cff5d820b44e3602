// Shows the captures of files, one after the other.
#pragma once

#include "client/capture.h"
#include "client/diagnostics.h"
#include "client/rendering.h"

#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

/// Which captures are shown: those that fit every choice made here.
struct Selection {
    std::vector<std::string> objects; ///< any of these
    std::optional<std::uint32_t> node;
    std::optional<std::string> direction;
    std::optional<std::uint32_t> xid;
    std::optional<bool> failed; ///< by the status of the view

    [[nodiscard]] bool fits(const Capture &capture) const;

    /// The choices as options; empty when all captures fit.
    [[nodiscard]] std::string text() const;
};

struct ReplayOptions {
    std::vector<std::string> files; ///< standard input when there are none
    Selection selection;
    bool count = false; ///< a table of what there is, in place of the text
    Rendering rendering;
    bool heading = false; ///< a line in front of each object
};

ExitStatus replay(const ReplayOptions &options);

} // namespace l2fib
