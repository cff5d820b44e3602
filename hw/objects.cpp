#include "hw/objects.h"

#include "common/failure.h"

namespace l2fib
{

std::uint32_t report_failure(Output &out, std::uint32_t level, const Literal &view, std::uint32_t objtype,
                             std::uint32_t status, const Literal &line_end)
{
    if (status != 0) {
        const Failure failure(out);
        out.line(level, "%s: print handler failed for objtype %d : %s%s", view, objtype, status_text(status), line_end);
    }
    return status;
}

} // namespace l2fib
