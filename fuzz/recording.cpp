// Proves that the recording build prints what the library prints, that what it takes down is on the screen and in the
// show data, that the client's lines of JSON are as published, and that checks stay in the show data: of every object
// in every view and direction.
#include "client/check/object_check.h"
#include "client/diff/tree_difference.h"
#include "fuzz/call.h"
#include "fuzz/functions.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "recording/schema/faults.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

/// A summary has no object type: the call's function says which one it is.
static const Object &object_of(const Call &call)
{
    constexpr const char *summaries[] = {"summary", "counters", "hal-summary", "resources"};
    static_assert(std::size(summaries) == summary_functions);
    for (const Object &object : objects()) {
        if (object.objtype == call.objtype && object.objtype != L2FIB_OBJTYPE_NONE) {
            return object;
        }
    }
    return *row_named(objects(), summaries[call.function % summary_functions]);
}

static Capture capture_of(std::span<const std::uint8_t> input)
{
    Call call{};
    std::memcpy(&call, input.data(), std::min(input.size(), sizeof call));
    Capture capture;
    capture.object = &object_of(call);
    capture.direction = &directions()[call.direction == L2FIB_EGRESS ? 1 : 0];
    for (const View &view : views()) {
        capture.view = view.flags == call.view_flags ? &view : capture.view;
    }
    capture.router.card_type = call.card_type;
    capture.router.clocks = Clocks{call.monotonic_seconds, call.nanoseconds};
    capture.router.time_zone = "UTC0";
    const auto show_data = input.subspan(std::min(input.size(), sizeof call));
    capture.show_data.assign(show_data.begin(), show_data.end());
    return capture;
}

/// Checks an object, whatever its show data is, and compares it with itself.
static void check_and_compare(const Capture &capture)
{
    static CheckedView view;
    static ObjectCheck check;
    recording::Tree tree;
    Capture shown = capture;
    tree.begin(shown.show_data);
    record_view(shown, tree);
    view.begin(tree, capture.show_data, capture.byte_order->order);
    for (const Finding &finding : check.check(*capture.object, view)) {
        for (const Statement &statement : finding.statements) {
            require(!statement.bytes || statement.bytes->offset + statement.bytes->width <= capture.show_data.size(),
                    "a finding's bytes are outside of the show data");
        }
    }
    require(changes({tree, capture.show_data}, {tree, capture.show_data}, true).empty(), "a view differs from itself");
}

static Shape shape_of_call(std::span<const std::uint8_t> input)
{
    Call call{};
    std::memcpy(&call, input.data(), std::min(input.size(), sizeof call));
    return call.objtype == L2FIB_OBJTYPE_NONE ? shape_of_summary(input) : shape_of_object(input);
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace l2fib;
    static const recording::PublishedSchema schema;
    const Capture capture = capture_of({data, size});
    for (const std::string &fault :
         {fault_of_text(capture), fault_of_screen(capture), fault_of_bytes(capture),
          fault_of_line(capture, as_json, schema), fault_of_line(capture, as_bytes, schema)}) {
        require(fault.empty(), fault.c_str());
    }
    check_and_compare(capture);
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_call, data, size, max_size, seed);
}
