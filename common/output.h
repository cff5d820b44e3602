// The one way out: all text of the library leaves through an Output.
#pragma once

#include "common/characters.h"
#include "common/format.h"
#include "common/number_text.h"

#include <cstdint>
#include <cstdio>
#include <type_traits>

namespace l2fib
{

/// The text of one call into the library. It is collected in a buffer, which goes to the stream when it is full and at
/// the end of the call. Call flush() before any function that may print by itself.
class Output
{
public:
    explicit Output(std::FILE *stream = stdout) : stream_(stream) {}
    ~Output() { flush(); }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    void flush();

    /// Prints on the current line. Returns the number of characters.
    template <class... Args>
    [[gnu::always_inline]] int text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        return text(format, std::index_sequence_for<Args...>(), printf_argument(args)...);
    }

    /// Prints a character `count` times.
    void repeat(char c, std::uint64_t count)
    {
        if (count > few) {
            put_many(c, count);
        } else {
            reserve(few);
            next_ = fill(next_, c, count);
        }
    }

    /// Pads as printf's "%*s" does with an empty string. A width that has overflowed to a negative one pads as well.
    int blanks(std::int64_t width)
    {
        repeat(' ', static_cast<std::uint64_t>(width < 0 ? -width : width));
        return static_cast<int>(width < 0 ? -width : width);
    }

    /// Prints the blanks before a line, two for each level.
    int indent(std::uint32_t level) { return blanks(static_cast<std::int32_t>(2 * level)); }

    /// Ends the line and indents the next one. Returns the column.
    int line(std::uint32_t level)
    {
        reserve(1 + few);
        *next_++ = '\n';
        return indent(level);
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
    static constexpr std::size_t buffer_size = 4096;
    static constexpr std::uint64_t few = 128;

    void put_many(char c, std::uint64_t count);

    /// Makes room for `size` characters, at most buffer_size.
    void reserve(std::size_t size)
    {
        if (next_ > buffer_ + buffer_size - size) {
            flush();
        }
    }

    // Always inlined: the compiler knows the format of each call then, and leaves nothing but the copying of its text.
    template <class AnyFormat, std::size_t... indices, class... Values>
    [[gnu::always_inline]] int text(const AnyFormat &format, std::index_sequence<indices...> /*all*/, Values... values)
    {
        reserve(format.room());
        std::size_t printed = 0;
        ((printed += put_literal(format, indices), printed += put(format, format.conversion(indices), values)), ...);
        printed += put_literal(format, sizeof...(Values));
        return static_cast<int>(printed);
    }

    template <class AnyFormat>
    [[gnu::always_inline]] std::size_t put_literal(const AnyFormat &format, std::size_t index)
    {
        const std::size_t size = format.conversion(index).literal;
        next_ = copy(next_, format.literal(index), size);
        return size;
    }

    template <class AnyFormat, class Integer>
    [[gnu::always_inline]] std::size_t put(const AnyFormat & /*format*/, Conversion conversion, Integer value)
    {
        const char *begin = next_;
        next_ = write_number(next_, conversion, number_bits(conversion.kind, value));
        return static_cast<std::size_t>(next_ - begin);
    }

    template <class AnyFormat>
    [[gnu::always_inline]] std::size_t put(const AnyFormat &format, Conversion conversion, std::string_view string)
    {
        const std::size_t size = string.size();
        if (size > Conversion::longest_width) {
            put_long_string(string);
            reserve(format.room());
            return size;
        }
        const std::size_t padding = conversion.width > size ? conversion.width - size : 0;
        char *at = fill(next_, ' ', conversion.left_aligned ? 0 : padding);
        at = copy(at, string.data(), size);
        next_ = fill(at, ' ', conversion.left_aligned ? padding : 0);
        return padding + size;
    }

    void put_long_string(std::string_view string);

    std::FILE *stream_;
    char *next_ = buffer_;
    char buffer_[buffer_size + fill_slack];
};

} // namespace l2fib
