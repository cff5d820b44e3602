// The baseline's texts of numbers, made by snprintf.
#pragma once

#include "common/format.h"

#include <cstdio>

namespace l2fib
{

template <class... Numbers>
using NumberFormat = Format<Numbers...>;

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
template <class... Numbers>
Text number_text(const NumberFormat<std::type_identity_t<Numbers>...> &format, Numbers... numbers)
{
    Text text;
    text.size = static_cast<std::size_t>(std::snprintf(text.chars, Text::capacity, format.text(), numbers...));
    return text;
}
#pragma GCC diagnostic pop

} // namespace l2fib
