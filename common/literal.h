// Texts that are written in the code.
#pragma once

#include <cstddef>
#include <string_view>

namespace l2fib
{

/// A text whose length the compiler knows. Null where a row of a table has none.
struct Literal {
    consteval Literal(const char *text) : chars(text), size(text == nullptr ? 0 : std::string_view(text).size()) {}

    const char *chars;
    std::size_t size;
};

} // namespace l2fib
