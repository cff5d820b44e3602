#include "client/capture.h"

namespace l2fib
{

std::uint32_t Capture::show(std::span<std::uint8_t> other_data) const
{
    answer_for(router);
    const View *chosen = shown_view();
    return object->show(*object, {node, direction->number, chosen == nullptr ? 0 : chosen->flags}, other_data);
}

} // namespace l2fib
