// Writes the sample captures into a directory: make-captures DIRECTORY
#include "examples/sample_lines.h"

#include <fstream>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: make-captures DIRECTORY\n";
        return 2;
    }
    for (const l2fib::SampleCapture &sample : l2fib::sample_captures) {
        const std::string path = std::string(argv[1]) + "/" + sample.name + ".jsonl";
        std::ofstream file(path, std::ios::binary);
        file << l2fib::sample_line(sample) << '\n';
        if (!file.flush()) {
            std::cerr << "make-captures: cannot write " << path << '\n';
            return 1;
        }
    }
    return 0;
}
