// Proves that any line can be read as a capture, that what is read is what the line says, whatever lines came before,
// that it is written as a line which is read as the same, and that showing it keeps to its show data.
#include "client/capture_reader.h"
#include "client/capture_writer.h"
#include "client/hex_digits.h"
#include "fuzz/exact_copy.h"
#include "fuzz/target.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace l2fib
{

static std::string lower(std::string digits)
{
    std::transform(digits.begin(), digits.end(), digits.begin(),
                   [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c; });
    return digits;
}

/// A line of a file, by a reader that has read the lines before it.
static void check(std::string_view line, CaptureReader &reader)
{
    const CaptureLine read = parse_capture(line);
    const CaptureLine &read_in_turn = reader.read(line);
    require(read_in_turn.error == read.error, "a line is as good as it is alone");
    if (!read.error.empty()) {
        return;
    }
    require(format_capture(read_in_turn.capture) == format_capture(read.capture), "a line says what it says alone");
    const Capture &capture = read.capture;
    const auto members = nlohmann::json::parse(line);
    require(lower(members.at("show_data")) == hex_of_bytes(capture.show_data), "the show data is the line's");
    require(members.at("object") == capture.object->name, "the object is the line's");
    constexpr std::size_t xid_size = 4;
    require(!capture.object->xid(capture.show_data) || capture.show_data.size() >= xid_size,
            "a cross-connect ID is in the show data");

    const std::string written = format_capture(capture);
    const CaptureLine again = parse_capture(written);
    require(again.error.empty(), "what is written can be read");
    require(format_capture(again.capture) == written, "what is read again is the same");

    const ExactCopy show_data(capture.show_data);
    capture.show({show_data.data(), show_data.size()});
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char *>(data), size);
    l2fib::CaptureReader reader;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        l2fib::check(line, reader);
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    return 0;
}
