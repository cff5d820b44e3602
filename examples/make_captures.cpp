// Writes the sample captures into a directory, and those with faults below it: make-captures DIRECTORY
#include "examples/planted_faults.h"
#include "examples/sample_lines.h"

#include <filesystem>

#include <fstream>
#include <iostream>

static bool write(const std::string &path, const std::string &lines)
{
    std::ofstream file(path, std::ios::binary);
    file << lines;
    if (!file.flush()) {
        std::cerr << "make-captures: cannot write " << path << '\n';
        return false;
    }
    return true;
}

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: make-captures DIRECTORY\n";
        return 2;
    }
    const std::string directory = argv[1];
    for (const l2fib::SampleCapture &sample : l2fib::sample_captures) {
        if (!write(directory + "/" + sample.name + ".jsonl", l2fib::sample_line(sample) + "\n")) {
            return 1;
        }
    }
    std::filesystem::create_directories(directory + "/faults");
    if (!write(directory + "/faults/planted.jsonl", l2fib::planted_lines())) {
        return 1;
    }
    return 0;
}
