// Proves that the platform summaries, the HAL's and the resource view keep to the show data, and that the summaries
// leave it as it was.
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "zel_l2fib/show.h"

#include <algorithm>

namespace l2fib
{

static void show(const CallInput &input)
{
    constexpr std::uint32_t node = 0;
    constexpr std::uint32_t hw_arg = 0;
    const std::uint64_t size = input.show_data.size();
    switch (input.call.function % summary_functions) {
    case state_summary: zel_l2fib_platform_summary_hw_print_internal(node, hw_arg, input.data, size); break;
    case event_statistics: zel_l2fib_platform_msg_counter_hw_print_internal(node, hw_arg, input.data, size); break;
    case hal_summary: zel_l2fib_trident_print_summary(hw_arg, input.data, size); break;
    default:
        zel_l2fib_print_internal(L2FIB_OBJTYPE_RSRC_MON, node, input.call.direction, L2FIB_VIEW_PRIVATE, input.data,
                                 size);
        break;
    }
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const l2fib::CallInput input({data, size});
    const l2fib::ExactCopy before({input.show_data.data(), input.show_data.size()});
    l2fib::show(input);
    l2fib::require(std::equal(before.data(), before.data() + before.size(), input.show_data.data()),
                   "the show data is as it was");
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_summary, data, size, max_size, seed);
}
