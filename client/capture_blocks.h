// Cuts files of captures into blocks.
#pragma once

#include "client/broken_lines.h"
#include "client/byte_source.h"
#include "client/capture_reader.h"
#include "client/parallel/block.h"

#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

constexpr const char *line_too_long = "line too long";

/// A line of a file, as messages call it.
std::string place_text(const std::string &file, std::size_t line);

/// Whether there is nothing on a line.
bool is_blank(std::string_view line);

/// What is on a line, which may be longer than any capture.
CaptureLine &read_capture(CaptureReader &reader, std::string_view line);

/// Files, one block after the other. What comes before a file's first capture is judged here, as that takes all of it;
/// of the rest, each block can be read by itself.
class CaptureBlocks
{
public:
    explicit CaptureBlocks(const std::vector<std::string> &files);

    /// Puts as much in a block as belongs there, and less where the rest of the input is not there yet. What can be
    /// read later is left to `Block::fetch`. False when nothing is left.
    bool fill(Block &block);

private:
    bool leave_lines(Block &block);
    void add_lines(Block &block);
    void skip_long_line(Block &block);
    void find_first_capture(Block &block, std::size_t begin);
    void refuse(std::string_view line, const std::string &why);
    void end_file(Block &block);

    void add_part(Block &block, const Block::Part &part);
    void add_message(Block &block, std::string_view message);
    void add_messages(Block &block, const std::vector<std::string> &messages);

    const std::vector<std::string> &files_;
    std::uint32_t file_ = 0;
    std::size_t line_ = 1; ///< of what is read next, up to the file's first capture
    std::optional<ByteSource> source_;
    bool is_at_end_ = false; ///< of the file, or it is given up
    bool is_in_long_line_ = false;
    std::string begun_;                      ///< a line that the last block had no room for
    std::optional<BrokenLines> no_captures_; ///< while the file has none
    CaptureReader reader_;
};

} // namespace l2fib
