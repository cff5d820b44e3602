// Proves that the hardware's views, which take no promise, keep to the show data: through
// zel_l2fib_trident_print_internal and each by itself, with an RP context in either byte order, a part of one, or none.
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "rp/ac_context.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// As the RP's views do before they hand over.
static void convert_context(std::uint32_t objtype, const ExactCopy &show_data)
{
    constexpr std::uint8_t no_nps = 0;
    const bool is_after_count = objtype == L2FIB_OBJTYPE_AC || objtype == L2FIB_OBJTYPE_BRIDGE;
    const std::size_t begin = is_after_count ? offsetof(AcShowData, context) : 0;
    if (show_data.size() >= begin + zel_l2fib_data_size(objtype, no_nps)) {
        zel_l2fib_rp_obj_endian_xform_ctx(objtype, show_data.data() + begin);
    }
}

static void show(const CallInput &input)
{
    const Call &call = input.call;
    const std::uint64_t size = input.show_data.size();
    constexpr std::uint32_t node = 0;
    constexpr std::uint32_t card_type = 1;
    switch (call.function % object_functions) {
    case detail:
        zel_l2fib_trident_print_internal_detail(input.level, call.objtype, card_type, call.direction, call.view_flags,
                                                input.data, size);
        break;
    case private_view:
        zel_l2fib_trident_print_internal_private(input.level, call.objtype, card_type, call.direction, call.view_flags,
                                                 input.data, size);
        break;
    case inconsistent:
        zel_l2fib_trident_print_internal_inconsistent(input.level, call.objtype, card_type, call.direction,
                                                      call.view_flags, input.data, size);
        break;
    default:
        zel_l2fib_trident_print_internal(input.level, call.objtype, node, call.direction, call.view_flags, input.data,
                                         size);
        break;
    }
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const l2fib::CallInput input({data, size});
    if (!input.call.has(l2fib::Call::context_as_received)) {
        l2fib::convert_context(input.call.objtype, input.show_data);
    }
    l2fib::show(input);
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_object, data, size, max_size, seed);
}
