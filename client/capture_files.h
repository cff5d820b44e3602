// Goes through the captures of files, those that are wanted.
#pragma once

#include "client/broken_lines.h"
#include "client/capture_reader.h"
#include "client/diagnostics.h"
#include "client/input.h"
#include "client/progress.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

/// Which captures are wanted: those that fit every choice made here.
struct Selection {
    std::vector<std::string> objects; ///< any of these
    std::optional<std::uint32_t> node;
    std::optional<std::string> direction;
    std::optional<std::uint32_t> xid;
    std::optional<bool> failed; ///< by the status of the view; for whoever shows it to decide

    [[nodiscard]] bool fits(const Capture &capture) const;

    /// The choices as options of the command line; empty when there are none.
    [[nodiscard]] std::string text() const;
};

/// Where a capture is from.
struct CapturePlace {
    const std::string &file;
    std::size_t line;

    [[nodiscard]] std::string text() const { return file + ":" + std::to_string(line); }
};

/// A run over files. What is wrong with a line is reported on standard error, and the rest goes on.
class CaptureFiles
{
public:
    /// Is handed a capture, to be changed at will. Returns whether it was wanted after all.
    using Take = std::function<bool(Capture &capture, const CapturePlace &place)>;

    CaptureFiles(const Selection &selection, Take take) : selection_(selection), take_(std::move(take)) {}

    /// Goes through the files, or standard input when there are none, as long as what is printed gets there.
    void read(const std::vector<std::string> &files);

    /// Says so when there were captures, and none was wanted.
    void report_no_match() const;

    /// `unusable` when some of the files could not be read.
    [[nodiscard]] ExitStatus status() const { return status_; }

    /// For what is written to standard error meanwhile.
    Progress &progress() { return progress_; }

private:
    void read_file(const std::string &path);
    void read_line(const Input::Line &line, const CapturePlace &place);
    void refuse(const Input::Line &line, const CapturePlace &place, const std::string &why);
    void note_capture();
    void report(const std::string &what);
    void report(const std::vector<std::string> &messages);

    const Selection &selection_;
    Take take_;
    Progress progress_;
    CaptureReader reader_;
    std::optional<BrokenLines> no_captures_; ///< while the file has none
    std::size_t captures_ = 0;
    std::size_t wanted_ = 0;
    ExitStatus status_ = shown;
};

} // namespace l2fib
