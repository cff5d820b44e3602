// The output unit with which the library's is compared: each piece of text is a printf of its own.
//
// The baseline is built with it in place of the library's; the views are the same.
#pragma once

#include "common/format.h"
#include "common/recording.h"

#include <algorithm>
#include <cstdio>

namespace l2fib
{

/// An argument as printf takes it.
template <class Arg>
struct Passed {
    explicit Passed(const Arg &arg) : value(printf_argument(arg)) {}
    [[nodiscard]] auto get() const { return value; }

    decltype(printf_argument(std::declval<const Arg &>())) value;
};
template <>
struct Passed<const char *> {
    explicit Passed(const char *text) : value(text) {}
    [[nodiscard]] const char *get() const { return value; }

    const char *value;
};
template <>
struct Passed<std::string_view> { // of the show data, where a zero follows it
    explicit Passed(std::string_view text) : value(text.data()) {}
    [[nodiscard]] const char *get() const { return value; }

    const char *value;
};
template <>
struct Passed<Literal> {
    explicit Passed(const Literal &text) : value(text.chars) {}
    [[nodiscard]] const char *get() const { return value; }

    const char *value;
};
template <>
struct Passed<Text> {
    explicit Passed(const Text &text) { value[std::string_view(text.view()).copy(value, Text::capacity)] = '\0'; }
    [[nodiscard]] const char *get() const { return value; }

    char value[Text::capacity + 1];
};

class Output
{
public:
    void flush() {}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
    template <class... Args>
    int text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        return std::printf(format.text(),
                           Passed<std::conditional_t<std::is_array_v<Args>, const char *, Args>>(args).get()...);
    }
#pragma GCC diagnostic pop

    void repeat(char c, std::uint64_t count)
    {
        for (; count != 0; --count) {
            std::printf("%c", c);
        }
    }

    int blanks(std::int64_t width)
    {
        return std::printf("%*s", static_cast<int>(width), "");
    }
    int indent(std::uint32_t level)
    {
        return blanks(static_cast<std::int32_t>(2 * level));
    }

    int line(std::uint32_t level)
    {
        std::printf("\n");
        return indent(level);
    }

    template <class... Args>
    void line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        line(level);
        text<Args...>(format, args...);
    }

    template <class... Args>
    int item(bool follows, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        const int comma = follows ? text(", ") : 0;
        return comma + text<Args...>(format, args...);
    }

    void continue_at(std::int64_t column)
    {
        text(",\n");
        blanks(column);
    }

    template <class... Args>
    void first_line(std::uint32_t level, const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        indent(level);
        text<Args...>(format, args...);
    }
};

} // namespace l2fib
