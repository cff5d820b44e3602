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

    void flush()
    {
        if (next_ != buffer_) {
            write_out();
        }
    }

    /// Prints a character `count` times.
    void repeat(char c, std::uint64_t count)
    {
        constexpr std::size_t few = 64;
        if (count <= few) {
            next_ = fill(room_for(few), c, static_cast<std::size_t>(count));
        } else {
            repeat_often(c, count);
        }
    }

    /// Pads as printf's "%*s" does with an empty string. A width that has overflowed to a negative one pads as well.
    int blanks(std::int64_t width)
    {
        const std::int64_t count = width < 0 ? -width : width;
        repeat(' ', static_cast<std::uint64_t>(count));
        return static_cast<int>(count);
    }

    /// Prints the blanks before a line, two for each level.
    int indent(std::uint32_t level) { return blanks(indentation(level)); }

    /// Ends the line and indents the next one. Returns the column.
    int line(std::uint32_t level)
    {
        next_ = begin_line(level, 0);
        const std::int64_t column = indentation(level);
        return static_cast<int>(column < 0 ? -column : column);
    }

    /// Ends a line of a list with a comma, and goes on at a column of the next one.
    void continue_at(std::int64_t column);

protected:
    /// The text that a format makes. It grows in the buffer from where there was room for it.
    struct Piece {
        explicit Piece(char *start) : at(start), begin(start) {}

        [[nodiscard]] std::size_t size() const { return gone + static_cast<std::size_t>(at - begin); }

        char *at;
        const char *begin;
        std::size_t gone = 0; ///< characters that the buffer had no room for
    };

    /// What has not gone to the stream yet.
    [[nodiscard]] std::string_view buffered() const { return {buffer_, static_cast<std::size_t>(next_ - buffer_)}; }

    /// Makes room for `size` characters, at most buffer_size. Returns where they go.
    [[gnu::always_inline]] char *room_for(std::size_t size)
    {
        if (next_ > buffer_ + buffer_size - size) [[unlikely]] {
            write_out();
        }
        return next_;
    }

    /// Ends the line and indents the next one, where it makes room for `size` characters.
    [[gnu::always_inline]] char *begin_line(std::uint32_t level, std::size_t size)
    {
        constexpr std::size_t blanks = 32;
        if (level > blanks / 2) [[unlikely]] {
            return begin_deep_line(level, size);
        }
        char *at = room_for(1 + blanks + size);
        *at++ = '\n';
        std::memset(at, ' ', blanks); // all of them, which takes less time than to count
        return at + 2 * std::size_t{level};
    }

    /// A piece that begins with a comma when it follows another one, and has room for `size` characters after that.
    [[gnu::always_inline]] Piece after_comma(bool follows, std::size_t size)
    {
        Piece piece(room_for(2 + size));
        copy(piece.at, ", ", 2);
        piece.at += follows ? 2 : 0;
        return piece;
    }

    void end(const Piece &piece) { next_ = piece.at; }

    // The parts of a format's text, for which there is room. Inlined down to the characters, the compiler knows the
    // format of each call, and what is left is what it prints.

    /// The text before an argument, or after the last one.
    template <class AnyFormat>
    [[gnu::always_inline]] static void put_literal(Piece &piece, const AnyFormat &format, std::size_t index)
    {
        piece.at = copy(piece.at, format.literal(index), format.conversion(index).literal);
    }

    template <class AnyFormat, class Integer>
    requires std::integral<Integer>
    [[gnu::always_inline]] void put(Piece &piece, const AnyFormat & /*format*/, Conversion conversion, Integer value)
    {
        piece.at = write_number(piece.at, conversion, number_bits(conversion.kind, value));
    }

    template <class AnyFormat>
    [[gnu::always_inline]] void put(Piece &piece, const AnyFormat & /*format*/, Conversion conversion, ShortText text)
    {
        put_padded(piece, conversion, text);
    }
    template <class AnyFormat>
    [[gnu::always_inline]] void put(Piece &piece, const AnyFormat & /*format*/, Conversion conversion, RoomyText text)
    {
        put_padded(piece, conversion, text);
    }

    template <class AnyFormat>
    [[gnu::always_inline]] void put(Piece &piece, const AnyFormat &format, Conversion conversion,
                                    std::string_view string)
    {
        if (string.size() > Conversion::longest_width) [[unlikely]] {
            piece.gone = piece.size() + string.size();
            next_ = piece.at;
            piece.at = put_long_string(string, format.room());
            piece.begin = piece.at;
        } else {
            put_padded(piece, conversion, string);
        }
    }

private:
    static constexpr std::size_t buffer_size = 4096;

    /// Two's complement, as the levels of the producer's printf calls wrap.
    static constexpr std::int64_t indentation(std::uint32_t level) { return static_cast<std::int32_t>(2 * level); }

    [[gnu::always_inline]] static char *copy_text(char *to, std::string_view text)
    {
        return copy(to, text.data(), text.size());
    }
    [[gnu::always_inline]] static char *copy_text(char *to, RoomyText text)
    {
        return copy_blocks(to, text.data(), text.size());
    }

    template <class AnyText>
    [[gnu::always_inline]] static void put_padded(Piece &piece, Conversion conversion, AnyText text)
    {
        const std::size_t padding = conversion.width > text.size() ? conversion.width - text.size() : 0;
        if (conversion.width == 0) {
            piece.at = copy_text(piece.at, text);
        } else if (conversion.left_aligned) {
            piece.at = fill(copy_text(piece.at, text), ' ', padding);
        } else {
            piece.at = copy_text(fill(piece.at, ' ', padding), text);
        }
    }

    void write_out();
    void repeat_often(char c, std::uint64_t count);
    char *begin_deep_line(std::uint32_t level, std::size_t size);
    char *put_long_string(std::string_view string, std::size_t room_after);

    std::FILE *stream_;
    char *next_ = buffer_;
    char buffer_[buffer_size + fill_slack];
};

} // namespace l2fib
