// Writes the sample captures into a directory: make-captures DIRECTORY
#include "examples/captures.h"

#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: make-captures DIRECTORY\n";
        return 2;
    }
    for (const l2fib::SampleCapture &sample : l2fib::sample_captures) {
        const std::string path = std::string(argv[1]) + "/" + sample.name + ".bin";
        const std::vector<std::uint8_t> bytes = sample.make();
        std::ofstream file(path, std::ios::binary);
        for (const std::uint8_t byte : bytes) {
            file.put(static_cast<char>(byte));
        }
        if (!file.flush()) {
            std::cerr << "make-captures: cannot write " << path << '\n';
            return 1;
        }
    }
    return 0;
}
