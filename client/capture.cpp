#include "client/capture.h"

#include "recording/stored_numbers.h"

namespace l2fib
{

static constexpr ByteOrder byte_order_table[] = {
    {"little", std::endian::little},
    {"big", std::endian::big},
};

std::span<const ByteOrder> byte_orders()
{
    return byte_order_table;
}

ViewArguments Capture::arguments() const
{
    const View *chosen = shown_view();
    return {node, direction->number, chosen == nullptr ? 0 : chosen->flags};
}

/// Turns the numbers round that a line card stores, and that the library reads in the order of its own processor. Where
/// they are, only the view knows: it goes through a copy before it is shown.
void Capture::store_as_here(std::span<std::uint8_t> other_data) const
{
    std::vector<std::uint8_t> copy(other_data.begin(), other_data.end());
    recording::StoredNumberTurner turner(copy, other_data);
    const recording::Recording recording(turner, recording::nowhere);
    object->show(recording_library, *object, arguments(), copy);
}

std::uint32_t Capture::show(std::span<std::uint8_t> other_data, const Library &library) const
{
    answer_for(router);
    if (byte_order->order != std::endian::native && !other_data.empty()) {
        store_as_here(other_data);
    }
    return object->show(library, *object, arguments(), other_data);
}

} // namespace l2fib
