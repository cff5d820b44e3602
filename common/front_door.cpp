// The front door: where a show client's request for an object comes in.
#include "common/hal_print.h"
#include "common/show_data.h"
#include "rp/context_end.h"
#include "rp/views.h"

namespace l2fib
{

/// Show data that ends inside the RP context stops here; the views trust their callers with that much.
static bool holds_context(Output &out, bool private_view, const ViewRequest &request)
{
    const ShowData data{request.show_data, request.size};
    const std::uint64_t end = data.is_null() ? 0 : context_end(private_view, request.objtype, data);
    if (data.size() >= end) {
        return true;
    }
    out.text("\n%s: data_size is %zd, expecting at least %zd", "zel_l2fib_print_internal", data.size(), end);
    return false;
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                  uint8_t *show_data, uint64_t size)
{
    using namespace l2fib;
    fill_hal_print();
    Output out;
    if (!card_is_supported(out, node_id)) {
        return 0;
    }
    const ViewRequest request{objtype, node_id, direction, view_flags, show_data, size};
    if ((view_flags & L2FIB_VIEW_INCONSISTENT) != 0) {
        return l2fib::zel_l2fib_print_internal_inconsistent(out, request);
    }
    const bool private_view = (view_flags & L2FIB_VIEW_PRIVATE) != 0;
    if (!holds_context(out, private_view, request)) {
        return L2FIB_SHOW_ERR_DATA;
    }
    return private_view ? l2fib::zel_l2fib_print_internal_private(out, request)
                        : l2fib::zel_l2fib_print_internal_detail(out, request);
}
