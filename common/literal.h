// Texts of the code.
#pragma once

#include <cstddef>
#include <string_view>

namespace l2fib
{

/// A text of the code, whose length the compiler knows. As a row of a table it may be left out.
struct Literal {
    consteval Literal(const char *text) : chars(text), size(text == nullptr ? 0 : std::string_view(text).size()) {}

    const char *chars;
    std::size_t size;
};

} // namespace l2fib
