// The one way out: all text of the library leaves through an Output.
#pragma once

#include "common/format.h"
#include "common/number_text.h"
#include "common/short_text.h"

#include <cstdint>
#include <cstdio>
#include <type_traits>

namespace l2fib
{

/// The text of one call into the library. It is put together here and handed to the stream when there is no more room,
/// and before control leaves the library: flush() is for what may print by itself, and the end of the call does the
/// rest.
class Output
{
public:
    explicit Output(std::FILE *stream = stdout) : stream_(stream) {}
    ~Output() { flush(); }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    void flush();

    /// Text as it stands. Returns the number of characters, as do the others.
    template <class... Args>
    int text(Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        const std::uint64_t begin = printed();
        reserve(format.room());
        Position position{format.text(), format.conversions(), format.room()};
        (put(position, printf_argument(args)), ...);
        put_literal(position);
        return static_cast<int>(printed() - begin);
    }

    /// As many blanks as printf pads a width with. One that overflowed to a negative number pads as well.
    int blanks(std::int64_t width)
    {
        if (width < 0 || width > few_blanks) {
            return many_blanks(static_cast<std::uint64_t>(width < 0 ? -width : width));
        }
        reserve(few_blanks);
        next_ = fill(next_, ' ', static_cast<std::size_t>(width));
        return static_cast<int>(width);
    }

    /// The blanks in front of a line, two a level.
    int indent(std::uint32_t level) { return blanks(static_cast<std::int32_t>(2 * level)); }

    /// Opens a new line, and ends the one before; returns the column reached.
    int line(std::uint32_t level)
    {
        reserve(1);
        *next_++ = '\n';
        return indent(level);
    }

    /// Opens a new line and prints its text.
    template <class... Args>
    void line(std::uint32_t level, Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        line(level);
        text<Args...>(format, args...);
    }

    /// The line that a show command begins with: there is none before it to end.
    template <class... Args>
    void first_line(std::uint32_t level, Format<std::type_identity_t<Args>...> format, const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }

private:
    static constexpr std::size_t buffer_size = 4096;
    static constexpr int few_blanks = 128;

    int many_blanks(std::uint64_t count);

    /// How far a format is printed.
    struct Position {
        const char *literal;
        const Conversion *conversion;
        std::size_t room; ///< that the rest takes at most
    };

    [[nodiscard]] std::uint64_t printed() const { return flushed_ + static_cast<std::uint64_t>(next_ - buffer_); }

    /// Makes room for so many characters, of at most a buffer.
    void reserve(std::size_t size)
    {
        if (static_cast<std::size_t>(buffer_ + buffer_size - next_) < size) {
            flush();
        }
    }

    void put_literal(Position &position)
    {
        const Conversion &conversion = *position.conversion;
        next_ = copy(next_, position.literal, conversion.literal);
        position.literal += conversion.literal + conversion.size;
    }

    void put(Position &position, std::string_view string)
    {
        put_literal(position);
        put_string(*position.conversion++, string, position.room);
    }

    template <class Integer>
    void put(Position &position, Integer value)
    {
        put_literal(position);
        const Conversion &conversion = *position.conversion++;
        next_ = write_number(next_, conversion, number_bits(conversion.kind, value));
    }

    /// A string, and room behind it for what follows.
    void put_string(const Conversion &conversion, std::string_view string, std::size_t room);

    std::FILE *stream_;
    std::uint64_t flushed_ = 0; // characters handed to the stream
    char *next_ = buffer_;
    char buffer_[buffer_size + fill_slack];
};

} // namespace l2fib
