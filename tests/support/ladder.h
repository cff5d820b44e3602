// Tables of what is said for each of many numbers, with a row for neighbours of which the same is said.
#pragma once

#include "tests/support/printed.h"

namespace l2fib
{

class Ladder
{
public:
    void add(std::size_t number, const std::string &said);
    std::string text();

private:
    void end_row();

    std::string text_;
    std::size_t first_ = 0;
    std::size_t last_ = 0;
    std::string said_;
};

/// What a row says of a screen that is not whole: its status, how many lines it has of the whole screen, and what
/// follows them. A size of show data that is reported appears as its distance from `size`.
std::string rung(const Shown &shown, const std::string &screen, std::size_t size);

} // namespace l2fib
