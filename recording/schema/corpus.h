// Captures of every kind, well-formed and not, and how to show them without a screen.
#pragma once

#include "client/rendering.h"

#include <functional>
#include <string>
#include <vector>

namespace l2fib
{

/// The sample captures.
std::vector<Capture> samples();

using UseCapture = std::function<void(const Capture &)>;

/// The show data of a capture as every object, in every view and direction.
void use_as_everything(const Capture &capture, const UseCapture &use);

/// A capture cut short at every size, from nothing to all of it.
void use_prefixes(const Capture &capture, const UseCapture &use);

/// A capture with some of its fields changed, so many times. Every time the program runs, they are the same.
void use_changed(const Capture &capture, unsigned times, const UseCapture &use);

/// A capture whose router does not know the card, and one of whose interfaces are virtual.
void use_on_other_routers(const Capture &capture, const UseCapture &use);

/// What a call prints to a stream that is replaced meanwhile: stdout, or recording::text_stream.
std::string text_on(std::FILE *&stream, const std::function<void()> &call);

/// A capture's line of JSON, without its end.
std::string line_of(const Capture &capture, const Rendering &rendering = {.json = true},
                    const Origin *origin = nullptr);

/// Has a recorder take down a view, from `converted`, a copy of the capture's show data. Returns the view's own text.
std::string text_of_recording(const Capture &capture, std::span<std::uint8_t> converted, recording::Recorder &recorder);

/// Hands out the fields that the view of a capture comes to, and the bytes between them, in their order.
void for_each_byte_run(const Capture &capture, const std::function<void(const recording::ByteRun &run)> &take);

} // namespace l2fib
