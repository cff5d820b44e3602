// Proves that zel_l2fib_print_internal keeps to the show data, whatever it is asked for and whatever the router
// answers: every object type and codes that are none, every view and direction, any size.
#include "fuzz/call.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "zel_l2fib/show.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const l2fib::CallInput input({data, size});
    const l2fib::Call &call = input.call;
    constexpr std::uint32_t node = 0;
    zel_l2fib_print_internal(call.objtype, node, call.direction, call.view_flags, input.data, input.show_data.size());
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_object, data, size, max_size, seed);
}
