#include "examples/sample_lines.h"

#include "client/capture_writer.h"
#include "examples/show_data_builder.h"

#include <utility>

namespace l2fib
{

/// A router in Berlin that has been up for twelve days.
static Router sample_router()
{
    Router router;
    router.clocks = Clocks{std::uint64_t{12} * 86400, 1'763'900'000};
    router.time_zone = "CET-1CEST,M3.5.0,M10.5.0/3";
    return router;
}

std::string sample_line(const SampleCapture &sample, std::endian stored)
{
    Capture capture;
    capture.object = row_named(objects(), sample.object);
    capture.direction = row_named(directions(), sample.direction);
    capture.view = row_named(views(), sample.view);
    capture.router = sample_router();
    capture.byte_order = &byte_orders()[stored == std::endian::big ? 1 : 0];
    const std::endian usual = std::exchange(stored_order, stored);
    capture.show_data = sample.make();
    stored_order = usual;
    return format_capture(capture);
}

} // namespace l2fib
