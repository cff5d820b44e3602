// Goes through the captures of files, those that are wanted.
#pragma once

#include "client/capture_blocks.h"
#include "client/diagnostics.h"
#include "client/parallel/workers.h"

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

/// Where the capture at hand is from.
struct CapturePlace {
    const std::string &file;
    LineCounter &counter;

    [[nodiscard]] std::size_t line() const { return counter.number(); }
    [[nodiscard]] std::string text() const { return place_text(file, line()); }
};

/// A run over files. What is wrong with a line is reported on standard error, and the rest goes on.
class CaptureFiles
{
public:
    /// Is handed a capture, to be changed at will. Returns whether it was wanted after all.
    using Take = std::function<bool(Capture &capture, const CapturePlace &place)>;

    /// Standard input when there are no files. Text that the caller holds back is flushed before something is reported.
    CaptureFiles(
        const std::vector<std::string> &files, const Selection &selection, Take take,
        std::function<void()> flush = [] {});

    /// Goes through the files, as long as what is printed gets there.
    void read();

    /// The same with as many processes. `work` has this run, and so has what `twin` makes for each of the others.
    void read(unsigned jobs, BlockWork &work, const MakeWork &twin);

    /// What the work has to do with them.
    std::size_t run(const Block &block, LineCounter &counter);
    void hand_over(Parcel &parcel);
    void take_over(OpenedParcel &parcel);

    /// Says so when there were captures, and none was wanted.
    void report_no_match() const;

    /// `unusable` when some of the files could not be read.
    [[nodiscard]] ExitStatus status() const { return counts_.status; }

private:
    std::size_t run(const Block::Part &part, std::string_view text, LineCounter &counter);
    void read_line(std::string_view line, const CapturePlace &place);
    void report(const std::string &what);

    struct Counts {
        std::size_t captures = 0;
        std::size_t wanted = 0;
        ExitStatus status = shown;
    };

    std::vector<std::string> files_;
    const Selection &selection_;
    Take take_;
    std::function<void()> flush_;
    CaptureReader reader_;
    Counts counts_;
};

} // namespace l2fib
