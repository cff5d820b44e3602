// How captures are shown: as the router's text, as JSON, or byte by byte.
#pragma once

#include "client/capture.h"
#include "recording/bytes_recorder.h"
#include "recording/json_recorder.h"

namespace l2fib
{

struct Rendering {
    bool json = false;
    bool bytes = false;
    bool colored = false; ///< of bytes as text
};

/// Where a capture comes from.
struct Origin {
    std::string_view file;
    std::size_t line;
};

/// Has a recorder take down what the view of a capture says. The show data is converted on the way. Returns the
/// library's status.
std::uint32_t record_view(Capture &capture, recording::Recorder &recorder);

/// Shows captures on standard output, one after the other.
class Renderer
{
public:
    explicit Renderer(const Rendering &rendering) : rendering_(rendering) {}

    /// Shows a capture, once. Returns the library's status. JSON says the origin, where there is one.
    std::uint32_t show(Capture &capture, const Origin *origin = nullptr);

    /// Hands what has been shown to standard output.
    void flush() { json_.flush(); }

    /// For JSON of the caller's own.
    recording::JsonWriter &json() { return json_; }

private:
    void open_line(const Capture &capture, const Origin *origin);
    std::uint32_t show_json(Capture &capture, const Origin *origin);
    std::uint32_t show_bytes(Capture &capture, const Origin *origin);
    void write_runs();

    Rendering rendering_;
    recording::JsonWriter json_{stdout};
    recording::JsonRecorder json_recorder_{json_};
    recording::BytesRecorder bytes_recorder_;
    std::vector<std::uint8_t> received_; ///< the show data before its view has converted it
};

} // namespace l2fib
