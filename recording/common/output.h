// In the place of common/output.h, for the recording build: what is printed is taken down as well.
#pragma once

#include "common/recording.h"
#include "common/text_writer.h"

#include <type_traits>
#include <utility>

namespace l2fib
{

template <class Made>
constexpr auto printf_argument(const FromField<Made> &from)
{
    return printf_argument(from.made);
}
template <class Said>
constexpr auto printf_argument(const Again<Said> &again)
{
    return printf_argument(again.said);
}

/// Where an argument comes from.
template <class Arg>
recording::Source source_of_argument(const Arg &arg)
{
    if constexpr (requires { arg.bytes; }) {
        return source_of(arg);
    } else if constexpr (requires { arg.source; }) {
        return arg.source;
    } else if constexpr (requires { arg.said; }) {
        recording::Source source = source_of_argument(arg.said);
        source.is_said = true;
        return source;
    } else {
        return {};
    }
}

class Output : public TextWriter
{
public:
    explicit Output(std::FILE *stream = recording::text_stream) : TextWriter(stream), recorder_(recording::current) {}

    using TextWriter::line;

    template <class... Args>
    int text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        return print(Piece(room_for(format.room())), format, std::index_sequence_for<Args...>(), args...);
    }

    template <class... Args>
    void line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        print(Piece(begin_line(level, format.room())), format, std::index_sequence_for<Args...>(), args...);
    }

    template <class... Args>
    int item(bool follows, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        return print(after_comma(follows, format.room()), format, std::index_sequence_for<Args...>(), args...);
    }

    template <class... Args>
    void first_line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }

    /// Notes a value that is not printed.
    template <class Noted>
    void note(const char *key, const Noted &noted)
    {
        if (recorder_ != nullptr) {
            recording::Source source = source_of_argument(noted);
            source.key = key;
            const auto value = printf_argument(noted);
            if constexpr (is_text_argument<std::remove_const_t<decltype(value)>>) {
                recorder_->value({recording::Value::text, false, 0, {}, value, source});
            } else {
                recorder_->value({std::is_same_v<decltype(value), const bool> ? recording::Value::truth
                                                                              : recording::Value::unsigned_number,
                                  false,
                                  widened(value),
                                  {},
                                  {},
                                  source});
            }
        }
    }

    [[nodiscard]] recording::Recorder *recorder() const { return recorder_; }

    using TextWriter::buffered;

private:
    template <class AnyFormat, std::size_t... indices, class... Args>
    int print(Piece piece, const AnyFormat &format, std::index_sequence<indices...> /*all*/, const Args &...args)
    {
        ((put_literal(piece, format, indices), put_recorded(piece, format, indices, args)), ...);
        put_literal(piece, format, sizeof...(Args));
        end(piece);
        return static_cast<int>(piece.size());
    }

    template <class AnyFormat, class Arg>
    void put_recorded(Piece &piece, const AnyFormat &format, std::size_t index, const Arg &arg)
    {
        const Conversion conversion = format.conversion(index);
        const auto value = printf_argument(arg);
        const char *const begin = piece.at;
        put(piece, format, conversion, value);
        if (recorder_ == nullptr) {
            return;
        }
        recording::Value recorded{recording::Value::text,
                                  sizeof value == sizeof(std::uint64_t),
                                  0,
                                  {format.literal(index), conversion.literal},
                                  {},
                                  source_of_argument(arg)};
        if constexpr (is_text_argument<std::remove_const_t<decltype(value)>>) {
            if (recorded.source.field == nullptr && recorded.source.key == nullptr) {
                return; // a text of the view's own
            }
            recorded.printed = value;
        } else {
            recorded.kind =
                std::is_same_v<decltype(value), const bool> ? recording::Value::truth : kind_of(conversion.kind);
            recorded.number = widened(value);
            recorded.printed = {begin, static_cast<std::size_t>(piece.at - begin)};
        }
        recorder_->value(recorded);
    }

    static constexpr recording::Value::Kind kind_of(Conversion::Kind kind)
    {
        switch (kind) {
        case Conversion::decimal: return recording::Value::signed_number;
        case Conversion::hex:
        case Conversion::upper_hex: return recording::Value::hex_number;
        default: return recording::Value::unsigned_number;
        }
    }

    recording::Recorder *recorder_;
};

inline Failure::Failure(Output &out) : out_(out)
{
    if (out_.recorder() != nullptr) {
        out_.flush();
        out_.recorder()->open_failure();
    }
}

inline Failure::~Failure()
{
    if (out_.recorder() != nullptr) {
        out_.recorder()->close_failure(out_.buffered());
    }
}

template <class Noted>
void note(Output &out, const char *key, const Noted &value)
{
    out.note(key, value);
}

} // namespace l2fib
