#include "client/capture_reader.h"

#include "client/hex_digits.h"

#include <cstring>
#include <optional>

namespace l2fib
{

/// What bounds the memory that frames take. One with many virtual interfaces or a remark fits.
constexpr std::size_t longest_frame = std::size_t{4} << 10U;
constexpr std::size_t most_frames = 256;

constexpr std::string_view show_data_name = "\"show_data\"";

/// Where the digits of the show data may begin on a line.
static std::optional<std::size_t> find_digits(std::string_view line)
{
    const void *name =
        memmem(line.data(), line.size(), show_data_name.data(), show_data_name.size()); // quicker than find
    if (name == nullptr) {
        return std::nullopt;
    }
    const std::size_t colon =
        static_cast<std::size_t>(static_cast<const char *>(name) - line.data()) + show_data_name.size();
    if (colon == line.size() || line[colon] != ':') {
        return std::nullopt;
    }
    const std::size_t quote = line.find_first_not_of(' ', colon + 1);
    return quote != std::string_view::npos && line[quote] == '"' ? std::optional(quote + 1) : std::nullopt;
}

/// Whether the place that the digits were taken from is sure to be the value of a member of that name: in JSON without
/// escapes, the name in quotes is nothing else. Which object's member it is, the parser sees.
static bool is_unambiguous(std::string_view frame)
{
    return frame.find('\\') == std::string_view::npos && frame.find(show_data_name) == frame.rfind(show_data_name);
}

/// The capture of the frame at hand; null when it has none, or not for sure.
const Capture *CaptureReader::capture_of_frame()
{
    const auto known = frames_.find(frame_);
    if (known != frames_.end()) {
        return &known->second;
    }
    if (!is_unambiguous(frame_)) {
        return nullptr;
    }
    CaptureLine parsed = parse_capture(frame_);
    if (!parsed.error.empty()) {
        return nullptr;
    }
    if (frames_.size() == most_frames) {
        frames_.clear();
    }
    return &(frames_[frame_] = std::move(parsed.capture));
}

/// Takes the line for a frame around digits from `begin` to `end`.
bool CaptureReader::read_by_frame(std::string_view line, std::size_t begin, std::size_t end)
{
    if (end < begin || end == std::string_view::npos || line.size() - (end - begin) > longest_frame) {
        return false;
    }
    frame_ = line.substr(0, begin);
    frame_ += line.substr(end);
    const Capture *known = capture_of_frame();
    if (known == nullptr) {
        return false;
    }
    result_.error.clear();
    result_.capture = *known;
    return append_hex(result_.capture.show_data, line.substr(begin, end - begin));
}

CaptureLine &CaptureReader::read(std::string_view line)
{
    if (const auto begin = find_digits(line)) {
        // Mostly the show data comes last, and the quote after it is found at once. Where it is not the first quote
        // after the digits, it is taken for one of them, and refused.
        const std::size_t last_quote = line.rfind('"');
        if (read_by_frame(line, *begin, last_quote) || read_by_frame(line, *begin, line.find('"', *begin))) {
            return result_;
        }
    }
    return result_ = parse_capture(line); // all of it, so that an error is where it is on the line
}

} // namespace l2fib
