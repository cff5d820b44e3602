// The show data of an object on the page, run by run.
#pragma once

#include "client/page/html_writer.h"
#include "client/page/links.h"

namespace l2fib
{

/// "28a"
std::string hex_number(std::size_t number);

/// "00 34 00 03"
std::string hex_pairs(std::span<const std::uint8_t> bytes);

/// What is not zero or has a value; the rest as ranges.
void write_bytes(HtmlWriter &out, recording::BytesRecorder &bytes, std::span<const std::uint8_t> received,
                 const Links &links);

} // namespace l2fib
