// The NPs of an object side by side: a row for each value, a column for each NP.
#pragma once

#include "client/page/html_writer.h"
#include "client/page/links.h"

namespace l2fib
{

/// Nothing where there are no NPs to be compared.
void write_nps(HtmlWriter &out, const CheckedView &view, const Links &links);

} // namespace l2fib
