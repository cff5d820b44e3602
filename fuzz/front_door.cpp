// Proves that zel_l2fib_print_internal keeps to the show data, whatever it is asked for and whatever the router
// answers: every object type and codes that are none, every view and direction, any size. The RP's views prove the same
// when they are called by themselves with the RP context that their callers promise.
#include "common/entry/rp_door.h"
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

static auto function_of(std::uint8_t number)
{
    switch (number % object_functions) {
    case detail: return zel_l2fib_print_internal_detail;
    case private_view: return zel_l2fib_print_internal_private;
    case inconsistent: return zel_l2fib_print_internal_inconsistent;
    default: return zel_l2fib_print_internal;
    }
}

static bool keeps_promise(const CallInput &input)
{
    const ViewKind view =
        input.call.function % object_functions == private_view ? ViewKind::private_context : ViewKind::detail;
    const ViewRequest request{.objtype = input.call.objtype, .show_data = input.data, .size = input.show_data.size()};
    return input.data == nullptr || request.size >= context_end(view, request);
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace l2fib;
    const CallInput input({data, size});
    const Call &call = input.call;
    const bool is_promised = call.function % object_functions == inconsistent || keeps_promise(input);
    const auto show = is_promised ? function_of(call.function) : zel_l2fib_print_internal;
    constexpr std::uint32_t node = 0;
    show(call.objtype, node, call.direction, call.view_flags, input.data, input.show_data.size());
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_object, data, size, max_size, seed);
}
