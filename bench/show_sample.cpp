// Shows a sample capture many times, for a profiler that looks at show_once() only: show-sample NAME TIMES
#include "client/capture_line.h"
#include "examples/sample_lines.h"

#include <cstdlib>
#include <iostream>
#include <string>

using namespace l2fib;

extern "C" [[gnu::noinline]] void show_once(const Capture &capture, std::vector<std::uint8_t> &show_data)
{
    capture.show(show_data);
}

int main(int argc, char **argv)
{
    if (argc == 1) {
        for (const SampleCapture &sample : sample_captures) {
            std::cout << sample.name << '\n';
        }
        return 0;
    }
    for (const SampleCapture &sample : sample_captures) {
        if (argc == 3 && sample.name == std::string(argv[1])) {
            const Capture capture = parse_capture(sample_line(sample)).capture;
            for (int times = std::atoi(argv[2]); times > 0; --times) {
                std::vector<std::uint8_t> show_data = capture.show_data;
                show_once(capture, show_data);
            }
            return 0;
        }
    }
    std::cerr << "usage: show-sample [NAME TIMES]\n";
    return 2;
}
