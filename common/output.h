// The one way out: all text of the library leaves through an Output.
#pragma once

#include "common/recording.h"
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
        return print(Piece(room_for(format.room())), format, std::index_sequence_for<Args...>(),
                     printf_argument(args)...);
    }

    /// Ends the line and prints the next one, except for its end.
    template <class... Args>
    [[gnu::always_inline]] void line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format,
                                     const Args &...args)
    {
        print(Piece(begin_line(level, format.room())), format, std::index_sequence_for<Args...>(),
              printf_argument(args)...);
    }

    /// Prints the first line of a show command: there is no line before it to end.
    template <class... Args>
    [[gnu::always_inline]] void first_line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format,
                                           const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }

    /// Prints an item of a list, with a comma before it when `follows`. Returns the number of characters.
    template <class... Args>
    [[gnu::always_inline]] int item(bool follows, const Format<std::type_identity_t<Args>...> &format,
                                    const Args &...args)
    {
        return print(after_comma(follows, format.room()), format, std::index_sequence_for<Args...>(),
                     printf_argument(args)...);
    }

private:
    template <class AnyFormat, std::size_t... indices, class... Values>
    [[gnu::always_inline]] int print(Piece piece, const AnyFormat &format, std::index_sequence<indices...> /*all*/,
                                     Values... values)
    {
        ((put_literal(piece, format, indices), put(piece, format, format.conversion(indices), values)), ...);
        put_literal(piece, format, sizeof...(Values));
        end(piece);
        return static_cast<int>(piece.size());
    }
};

} // namespace l2fib
