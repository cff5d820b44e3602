#include "tests/support/golden.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace l2fib
{

void expect_golden(const std::string &file, const std::string &text)
{
    const std::string path = "tests/screens/" + file;
    if (std::getenv("L2FIB_ACCEPT_SCREENS") != nullptr) {
        std::ofstream(L2FIB_SOURCE_DIR "/" + path, std::ios::binary) << text;
    }
    EXPECT_EQ(text, file_text(path)) << path;
}

} // namespace l2fib
