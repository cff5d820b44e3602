// Shows a sample capture many times, for a profiler that looks at the library's functions only: show-sample NAME TIMES.
// The sample empty-screen is an object of which there is nothing to show: what is left is the cost of a call.
#include "client/capture_line.h"
#include "examples/sample_lines.h"

#include <cstdlib>
#include <iostream>
#include <string>

using namespace l2fib;

constexpr const char *empty_screen = "empty-screen";

static void show_nothing(int times)
{
    std::uint8_t show_data[1]{};
    for (; times > 0; --times) {
        zel_l2fib_print_internal(L2FIB_OBJTYPE_MCAST_LEAF, 0, L2FIB_INGRESS, L2FIB_VIEW_DETAIL, show_data,
                                 sizeof show_data);
    }
}

static void show(const Capture &capture, int times)
{
    for (; times > 0; --times) {
        std::vector<std::uint8_t> show_data = capture.show_data;
        capture.show(show_data);
    }
}

int main(int argc, char **argv)
{
    if (argc == 1) {
        for (const SampleCapture &sample : sample_captures) {
            std::cout << sample.name << '\n';
        }
        std::cout << empty_screen << '\n';
        return 0;
    }
    for (const SampleCapture &sample : sample_captures) {
        if (argc == 3 && sample.name == std::string(argv[1])) {
            show(parse_capture(sample_line(sample)).capture, std::atoi(argv[2]));
            return 0;
        }
    }
    if (argc == 3 && std::string(argv[1]) == empty_screen) {
        show_nothing(std::atoi(argv[2]));
        return 0;
    }
    std::cerr << "usage: show-sample [NAME TIMES]\n";
    return 2;
}
