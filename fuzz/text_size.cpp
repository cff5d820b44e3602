// Proves that show data of any size up to 4 MiB gives no more text than most_text() says, through every entry: the end
// of the show data is repeated up to the size that the input asks for, as the lines of a hex dump are by a "*".
#include "tests/support/text_size.h"
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

static std::vector<std::uint8_t> with_its_end_repeated(const CallInput &input)
{
    constexpr unsigned smallest = 10; // powers of two
    constexpr unsigned largest = 22;
    std::vector<std::uint8_t> data(input.show_data.data(), input.show_data.data() + input.show_data.size());
    const std::size_t size = std::size_t{1} << (smallest + input.call.magnitude % (largest - smallest + 1));
    const std::size_t period = std::min<std::size_t>(input.call.period, data.size());
    data.reserve(size);
    while (period != 0 && data.size() < size) {
        data.push_back(data[data.size() - period]);
    }
    return data;
}

static void show(const Call &call, std::vector<std::uint8_t> &data)
{
    constexpr std::uint32_t node = 0;
    constexpr std::uint32_t hw_arg = 0;
    switch (call.function % summary_functions) {
    case state_summary: zel_l2fib_platform_summary_hw_print_internal(node, hw_arg, data.data(), data.size()); break;
    case event_statistics:
        zel_l2fib_platform_msg_counter_hw_print_internal(node, hw_arg, data.data(), data.size());
        break;
    case hal_summary: zel_l2fib_trident_print_summary(hw_arg, data.data(), data.size()); break;
    default:
        zel_l2fib_print_internal(call.objtype, node, call.direction, call.view_flags, data.data(), data.size());
        break;
    }
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace l2fib;
    const CallInput input({data, size});
    std::vector<std::uint8_t> show_data = with_its_end_repeated(input);
    const std::uint64_t text = text_size([&] { show(input.call, show_data); });
    require(text <= most_text(show_data.size()), "the text is no longer than show data of this size can give");
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_object, data, size, max_size, seed);
}
