// What a show client asks for.
#pragma once

#include "common/show_data.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// The arguments of every view of an object.
struct ViewRequest {
    std::uint32_t objtype;
    std::uint32_t node_id;
    std::uint32_t direction;
    std::uint32_t view_flags;
    std::uint8_t *show_data;
    std::uint64_t size;

    [[nodiscard]] ShowData data() const { return {show_data, size}; }
};

enum class ViewKind : std::uint8_t { none, detail, private_context, inconsistency };

/// The view that the flags select. Of several flags, the strongest one counts.
constexpr ViewKind selected_view(std::uint32_t view_flags)
{
    return (view_flags & L2FIB_VIEW_INCONSISTENT) != 0 ? ViewKind::inconsistency
           : (view_flags & L2FIB_VIEW_PRIVATE) != 0    ? ViewKind::private_context
           : (view_flags & L2FIB_VIEW_DETAIL) != 0     ? ViewKind::detail
                                                       : ViewKind::none;
}

} // namespace l2fib
