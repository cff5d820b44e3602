// The one way out: all text of the library leaves through an Output.
#pragma once

#include "common/text_writer.h"

#include <type_traits>
#include <utility>

namespace l2fib
{

class Output : public TextWriter
{
public:
    explicit Output(std::FILE *stream = stdout) : TextWriter(stream) {}

    using TextWriter::line;

    /// Prints on the current line. Returns the number of characters.
    template <class... Args>
    [[gnu::always_inline]] int text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        return text(format, std::index_sequence_for<Args...>(), printf_argument(args)...);
    }

    /// Ends the line and prints the next one, except for its end.
    template <class... Args>
    [[gnu::always_inline]] void line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format,
                                     const Args &...args)
    {
        line(level);
        text<Args...>(format, args...);
    }

    /// Prints the first line of a show command: there is no line before it to end.
    template <class... Args>
    [[gnu::always_inline]] void first_line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format,
                                           const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }

private:
    template <class AnyFormat, std::size_t... indices, class... Values>
    [[gnu::always_inline]] int text(const AnyFormat &format, std::index_sequence<indices...> /*all*/, Values... values)
    {
        reserve(format.room());
        std::size_t printed = 0;
        ((printed += put_literal(format, indices), printed += put(format, format.conversion(indices), values)), ...);
        printed += put_literal(format, sizeof...(Values));
        return static_cast<int>(printed);
    }
};

} // namespace l2fib
