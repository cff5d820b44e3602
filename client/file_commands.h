// The commands that read files of captures: replay, check, diff and page.
#pragma once

#include "client/check/check.h"
#include "client/diff/diff.h"
#include "client/options.h"
#include "client/page/page.h"
#include "client/replay.h"

#include <functional>
#include <optional>

namespace l2fib
{

class FileCommands
{
public:
    /// Adds them. The rendering's options are those of all commands.
    FileCommands(CLI::App &app, RenderingOptions &rendering);
    FileCommands(const FileCommands &) = delete;
    FileCommands &operator=(const FileCommands &) = delete;

    /// Does what was asked for; nothing when that is none of these commands.
    std::optional<ExitStatus> run();

private:
    void add_replay(CLI::App &command);
    void add_check(CLI::App &command);
    void add_diff(CLI::App &command);
    void add_page(CLI::App &command);

    RenderingOptions &rendering_;
    unsigned jobs_ = 0; ///< as many as there are processors
    ReplayOptions replay_;
    CheckOptions check_;
    DiffOptions diff_;
    PageOptions page_;
    std::function<ExitStatus()> asked_for_;
};

} // namespace l2fib
