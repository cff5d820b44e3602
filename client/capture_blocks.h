// Cuts files of captures into blocks.
#pragma once

#include "client/broken_lines.h"
#include "client/byte_source.h"
#include "client/capture_reader.h"
#include "client/parallel/block.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

/// Where a capture is from.
struct CapturePlace {
    const std::string &file;
    std::size_t line;

    [[nodiscard]] std::string text() const { return file + ":" + std::to_string(line); }
};

/// Whether there is nothing on a line.
bool is_blank(std::string_view line);

/// What is on a line, which may be longer than any capture.
CaptureLine &read_capture(CaptureReader &reader, std::string_view line);

/// Calls for each line of a text, without its end.
template <class Function>
void for_each_line(std::string_view text, const Function &function)
{
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (!function(line)) {
            return;
        }
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
}

/// Files, one block after the other. What comes before a file's first capture is judged here, as that takes all of it;
/// of the rest, each block can be read by itself.
class CaptureBlocks
{
public:
    explicit CaptureBlocks(const std::vector<std::string> &files);

    /// Puts as much in a block as belongs there, and less where the rest of the input is not there yet. False when
    /// nothing is left.
    bool fill(Block &block);

private:
    void add_lines(Block &block);
    void skip_long_line(Block &block);
    void find_first_capture(Block &block, std::size_t begin);
    void refuse(std::string_view line, const std::string &why);
    [[nodiscard]] CapturePlace place() const { return {files_[file_], line_}; }
    void end_file(Block &block);

    void add_part(Block &block, const Block::Part &part);
    void add_text(Block &block, std::size_t begin, std::size_t end);
    void add_message(Block &block, std::string_view message);
    void add_messages(Block &block, const std::vector<std::string> &messages);

    const std::vector<std::string> &files_;
    std::uint32_t file_ = 0;
    std::size_t line_ = 1; ///< of what is read next
    std::optional<ByteSource> source_;
    bool is_at_end_ = false; ///< of the file, or it is given up
    bool is_in_long_line_ = false;
    std::string begun_;                      ///< a line that the last block had no room for
    std::optional<BrokenLines> no_captures_; ///< while the file has none
    CaptureReader reader_;
};

} // namespace l2fib
