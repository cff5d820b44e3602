// The tree of an object on the page: what its view says, section by section.
#pragma once

#include "client/page/html_writer.h"
#include "client/page/links.h"

namespace l2fib
{

/// No object needs more rows on the page; what hostile show data has beyond them is only counted.
constexpr std::size_t most_rows = 20000;

/// All values but those in the table of the NPs.
void write_values(HtmlWriter &out, const CheckedView &view, const Links &links);

/// A value as on the screen, linked to its bytes, with the number that a name stands for.
void write_value(HtmlWriter &out, const recording::Tree &tree, const recording::TreeValue &value, const Links &links);

/// "None", "0x00340003", "VPLS, Learn enable"
std::string shown_text(const recording::Tree &tree, const recording::TreeValue &value);

} // namespace l2fib
