#include "client/capture_blocks.h"

#include <algorithm>
#include <cstring>
#include <span>

namespace l2fib
{

using Kind = Block::Part::Kind;

constexpr std::size_t shortest_read = std::size_t{1} << 16U;

bool is_blank(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

std::string place_text(const std::string &file, std::size_t line)
{
    return file + ":" + std::to_string(line);
}

CaptureLine &read_capture(CaptureReader &reader, std::string_view line)
{
    return line.size() > Block::longest_line ? reader.refuse(line_too_long) : reader.read(line);
}

CaptureBlocks::CaptureBlocks(const std::vector<std::string> &files) : files_(files) {}

bool CaptureBlocks::fill(Block &block)
{
    block.part_count = 0;
    block.size = 0;
    block.unread.descriptor = -1;
    while (file_ < files_.size() && !block.is_full()) {
        if (!source_) {
            source_.emplace(files_[file_], Compressed::by_magic);
            no_captures_.emplace();
        }
        if (block.part_count != 0 && !source_->is_ready()) {
            break; // what is there is shown before more is waited for
        }
        if (leave_lines(block)) {
            break;
        }
        is_in_long_line_ ? skip_long_line(block) : add_lines(block);
        if (is_at_end_) {
            end_file(block);
        }
    }
    return block.part_count != 0;
}

/// Of a plain file whose first capture is found, a block may have lines that were not read.
bool CaptureBlocks::leave_lines(Block &block)
{
    if (block.part_count != 0 || no_captures_ || is_in_long_line_) {
        return false;
    }
    const auto part = source_->skip_lines(begun_.size(), Block::usual_size, Block::longest_line);
    if (!part) {
        return false;
    }
    begun_.clear();
    block.leave(file_, *part);
    return true;
}

/// Adds the lines that there is room for and that are there, one at least.
void CaptureBlocks::add_lines(Block &block)
{
    const std::size_t begin = block.size;
    const auto room = std::span(block.text).subspan(begin, Block::usual_size + Block::longest_line - begin);
    std::copy(begun_.begin(), begun_.end(), room.begin());
    std::size_t size = begun_.size();
    std::size_t whole = begun_.rfind('\n') + 1; // where the last line ends
    do {
        const std::size_t usual = Block::usual_size - std::min(Block::usual_size, begin + size);
        const std::size_t count =
            source_->read(room.subspan(size, std::clamp(usual, shortest_read, room.size() - size)));
        const void *last = memrchr(&room[size], '\n', count);
        whole = last == nullptr ? whole : static_cast<std::size_t>(static_cast<const char *>(last) - room.data()) + 1;
        size += count;
        is_at_end_ = count == 0;
    } while (!is_at_end_ && whole == 0 && size <= Block::longest_line);
    if (is_at_end_ && source_->error().empty()) {
        whole = size; // the last line may have no end; where nothing more could be read, it is none
    }
    is_in_long_line_ = !is_at_end_ && whole == 0;
    begun_.assign(&room[whole], is_in_long_line_ || is_at_end_ ? 0 : size - whole);
    block.size = begin + whole;
    if (no_captures_) {
        find_first_capture(block, begin);
    } else if (whole != 0) {
        add_part(block, {Kind::lines, file_, 0, begin, whole});
    }
}

/// Of a line that is longer than any capture, only its end is of interest.
void CaptureBlocks::skip_long_line(Block &block)
{
    const auto room = std::span(block.text).subspan(block.size, shortest_read);
    const std::string_view read(room.data(), source_->read(room));
    is_at_end_ = read.empty();
    const std::size_t end = read.find('\n');
    if (end == std::string_view::npos && !is_at_end_) {
        return;
    }
    is_in_long_line_ = false;
    begun_ = is_at_end_ ? "" : read.substr(end + 1);
    if (!no_captures_) {
        add_part(block, {Kind::too_long, file_, 0, block.size, 0});
        return;
    }
    refuse({}, line_too_long);
    ++line_;
    if (no_captures_->are_enough()) {
        is_at_end_ = true;
    }
}

void CaptureBlocks::add_part(Block &block, const Block::Part &part)
{
    block.parts[block.part_count++] = part;
}

void CaptureBlocks::add_message(Block &block, std::string_view message)
{
    const std::size_t size = message.copy(&block.text[block.size], block.text.size() - block.size);
    add_part(block, {Kind::message, file_, 0, block.size, size});
    block.size += size;
}

void CaptureBlocks::add_messages(Block &block, const std::vector<std::string> &messages)
{
    for (const std::string &message : messages) {
        add_message(block, message);
    }
}

/// A line that is no capture, before the first one.
void CaptureBlocks::refuse(std::string_view line, const std::string &why)
{
    no_captures_->add(line, place_text(files_[file_], line_) + ": " + why);
}

/// Leaves out what comes before the file's first capture. Of a file that is no file of captures, that is all of it.
void CaptureBlocks::find_first_capture(Block &block, std::size_t begin)
{
    const std::string_view text(&block.text[begin], block.size - begin);
    std::size_t first = 0;
    bool is_found = false;
    for_each_line(text, [&](std::string_view line) {
        if (!is_blank(line)) {
            const std::string &error = read_capture(reader_, line).error;
            is_found = error.empty();
            if (is_found) {
                return false;
            }
            refuse(line.size() > Block::longest_line ? std::string_view() : line, error);
        }
        ++line_;
        first += line.size() + 1;
        return !no_captures_->are_enough();
    });
    if (is_found) {
        const Block::Part rest{Kind::lines, file_, line_, begin + first, block.size - begin - first};
        if (block.size > Block::usual_size) {
            reader_ = {}; // which would keep as much memory as the largest capture takes
        }
        add_messages(block, no_captures_->messages());
        no_captures_.reset();
        add_part(block, rest);
    } else {
        is_at_end_ = is_at_end_ || no_captures_->are_enough();
        block.size = begin;
    }
}

void CaptureBlocks::end_file(Block &block)
{
    if (no_captures_) {
        add_messages(block, no_captures_->verdict(files_[file_]));
    }
    if (!source_->error().empty()) {
        add_message(block, source_->error());
    }
    no_captures_.reset();
    source_.reset();
    begun_.clear();
    is_at_end_ = false;
    is_in_long_line_ = false;
    line_ = 1;
    ++file_;
}

} // namespace l2fib
