// How text is put together and leaves the process.
#pragma once

#include "common/characters.h"
#include "common/format.h"
#include "common/number_text.h"

#include <cstdint>
#include <cstdio>

namespace l2fib
{

/// The text of one call into the library. It is collected in a buffer, which goes to the stream when it is full and at
/// the end of the call. Call flush() before any function that may print by itself.
class TextWriter
{
public:
    explicit TextWriter(std::FILE *stream) : stream_(stream) {}
    ~TextWriter() { flush(); }
    TextWriter(const TextWriter &) = delete;
    TextWriter &operator=(const TextWriter &) = delete;

    void flush();

    /// Prints a character `count` times.
    void repeat(char c, std::uint64_t count)
    {
        if (count > few) {
            put_many(c, count);
        } else {
            reserve(few);
            next_ = fill(next_, c, static_cast<std::size_t>(count));
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

protected:
    /// What has not gone to the stream yet.
    [[nodiscard]] std::string_view buffered() const { return {buffer_, static_cast<std::size_t>(next_ - buffer_)}; }

    /// Makes room for `size` characters, at most buffer_size.
    void reserve(std::size_t size)
    {
        if (next_ > buffer_ + buffer_size - size) {
            flush();
        }
    }

    // The pieces of a format's text, for which there is room. Each returns its number of characters. Inlined down to
    // the characters, the compiler knows the format of each call, and what is left is what it prints.

    /// The text before an argument, or after the last one.
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

private:
    static constexpr std::size_t buffer_size = 4096;
    static constexpr std::uint64_t few = 128;

    void put_many(char c, std::uint64_t count);
    void put_long_string(std::string_view string);

    std::FILE *stream_;
    char *next_ = buffer_;
    char buffer_[buffer_size + fill_slack];
};

} // namespace l2fib
