#include "client/page/page_files.h"

#include <iterator>

namespace l2fib
{

static constexpr char style[] = {
#include "page_style.inc" // the bytes of page.css
};
static constexpr char script[] = {
#include "page_script.inc" // the bytes of page.js
};

std::string_view page_style()
{
    return {style, std::size(style)};
}

std::string_view page_script()
{
    return {script, std::size(script)};
}

std::string_view page_policy()
{
    return "default-src 'none'; base-uri 'none'; form-action 'none'; style-src 'sha256-" L2FIB_PAGE_STYLE_HASH
           "'; script-src 'sha256-" L2FIB_PAGE_SCRIPT_HASH "'";
}

} // namespace l2fib
