#include "hw/np.h"

namespace l2fib
{

void print_invalid_np_count(Output &out, std::uint32_t np_count)
{
    const Failure failure(out);
    if (np_count > max_nps) {
        out.text("Error: Number of NPs (%d) returned more than supported(%d)", np_count, max_nps);
    } else {
        out.text("Error: Number of NPs (%d) returned is invalid", np_count);
    }
}

} // namespace l2fib
