// What may be wrong with a view as it is recorded. Each function says what is, and nothing where all is right.
#pragma once

#include "client/rendering.h"
#include "recording/schema/check.h"

namespace l2fib
{

/// The recording build prints the library's text, and leaves the show data as the library does.
std::string fault_of_text(const Capture &capture);

/// Every value is on the screen, and every flag, in their order.
std::string fault_of_screen(const Capture &capture);

/// The bytes where a value comes from, as --bytes has them, yield its number.
std::string fault_of_bytes(const Capture &capture);

/// The line is valid JSON without a key twice or empty, and as published.
std::string fault_of_line(const Capture &capture, const Rendering &rendering, const recording::PublishedSchema &schema);

constexpr Rendering as_json{.json = true};
constexpr Rendering as_bytes{.json = true, .bytes = true};

} // namespace l2fib
