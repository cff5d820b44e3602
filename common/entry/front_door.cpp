// The front door: the function by which a show client asks for an object.
#include "common/entry/card.h"
#include "common/entry/hal_table.h"
#include "common/entry/rp_door.h"

namespace l2fib
{

static std::uint32_t show_object(Output &out, const ViewRequest &request)
{
    fill_hal_table();
    if (!check_card(out, request.node_id)) {
        return 0;
    }
    const ViewKind view = selected_view(request.view_flags);
    return view == ViewKind::inconsistency ? show_inconsistency(out, request) : show_whole_context(out, view, request);
}

} // namespace l2fib

uint32_t zel_l2fib_print_internal(uint32_t objtype, uint32_t node_id, uint32_t direction, uint32_t view_flags,
                                  uint8_t *show_data, uint64_t size)
{
    l2fib::Output out;
    return l2fib::show_object(out, {objtype, node_id, direction, view_flags, show_data, size});
}
