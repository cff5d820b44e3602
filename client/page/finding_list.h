// What a check has found, on the page.
#pragma once

#include "client/page/html_writer.h"
#include "client/page/links.h"

#include <functional>

namespace l2fib
{

/// Findings that are for everyone first; those that are most often right are folded.
void write_findings(HtmlWriter &out, const std::vector<Finding> &findings, std::span<const std::uint8_t> received,
                    const Links &links);

/// Where the object of "router.jsonl:12" is on the page: "#o7"; empty when it is not there.
using ToObject = std::function<std::string(const std::string &place)>;

/// A finding about several objects.
void write_finding(HtmlWriter &out, const Finding &finding, const ToObject &to_object);

/// "1 note", "2 notes"
std::string counted(std::size_t count, const char *one, const char *many);

} // namespace l2fib
