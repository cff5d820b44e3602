// The style sheet and the script of the page, which are files of their own in the sources.
#pragma once

#include <string_view>

namespace l2fib
{

std::string_view page_style();
std::string_view page_script();

/// The Content-Security-Policy that allows these two, and nothing else.
std::string_view page_policy();

} // namespace l2fib
