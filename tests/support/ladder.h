// Tables of what is said for each of many numbers, with a row for neighbours of which the same is said.
#pragma once

#include <iomanip>
#include <sstream>
#include <string>

namespace l2fib
{

class Ladder
{
public:
    void add(std::size_t number, const std::string &said)
    {
        if (said != said_) {
            end_row();
            first_ = number;
            said_ = said;
        }
        last_ = number;
    }

    std::string text()
    {
        end_row();
        return text_.str();
    }

private:
    void end_row()
    {
        if (!said_.empty()) {
            text_ << std::setw(5) << first_ << " .. " << std::setw(5) << last_ << "  " << said_ << '\n';
        }
    }

    std::ostringstream text_;
    std::size_t first_ = 0;
    std::size_t last_ = 0;
    std::string said_;
};

} // namespace l2fib
