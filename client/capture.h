// A capture: an object's show data, with all that is needed to show it as on its router.
#pragma once

#include "client/objects.h"
#include "client/offline_platform.h"

#include <unordered_map>

namespace l2fib
{

struct Capture {
    const Object *object = nullptr;
    std::uint32_t node = 0;
    const Direction *direction = &directions().front();
    const View *view = nullptr; ///< null for the object's default
    Router router;
    std::vector<std::uint8_t> show_data;

    /// Null for what has no views.
    [[nodiscard]] const View *shown_view() const { return view != nullptr ? view : object->default_view; }

    /// Shows it, without any show data where it has no bytes. The show data is converted on the way, so this is done
    /// once. Returns the library's status.
    std::uint32_t show() { return show(show_data.empty() ? std::span<std::uint8_t>{} : show_data); }

    /// Shows other show data in place of its own, as the same object on the same router.
    std::uint32_t show(std::span<std::uint8_t> other_data) const;
};

/// The capture on a line of a file.
struct CaptureLine {
    Capture capture;
    std::string error; ///< why there is none; fit for a terminal
};
CaptureLine parse_capture(std::string_view line);

/// Parses the lines of a file. Those of a router's dump mostly differ in their digits only, and are read by what was
/// read before.
class CaptureParser
{
public:
    /// What is on a line. It stands until the next one is parsed.
    CaptureLine &parse(std::string_view line);

private:
    struct Parts;
    bool read_as_known(const Parts &parts);
    CaptureLine read_anew(std::string_view line, const Parts &parts);

    std::unordered_map<std::string, Capture> known_; ///< by the line without its digits
    std::string frame_;                              ///< the line at hand without them
    std::string back_;                               ///< of the last line: what was behind them
    CaptureLine result_;
};

/// The line of a capture, without its end.
std::string format_capture(const Capture &capture);

} // namespace l2fib
