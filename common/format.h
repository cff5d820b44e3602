// printf formats that are compared with their arguments when the code is compiled.
//
// Beside numbers and C strings they take the fields of the show data themselves, and texts that a formatter made.
#pragma once

#include "common/stored.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace l2fib
{

/// A text made for one item of output, with room for its terminator.
template <std::size_t capacity>
struct Text {
    char chars[capacity] = {};
};

template <class Integer>
requires std::integral<Integer>
constexpr Integer printf_argument(Integer value)
{
    return value;
}
constexpr const char *printf_argument(const char *text)
{
    return text;
}
template <class Integer>
constexpr Integer printf_argument(const Stored<Integer> &field)
{
    return field.value();
}
template <std::size_t capacity>
constexpr const char *printf_argument(const Text<capacity> &text)
{
    return text.chars;
}

template <class... Args>
class Format
{
public:
    // Implicit, so that a format is written as the string that it is.
    consteval Format(const char *text) : text_(text)
    {
        constexpr std::array<Kind, sizeof...(Args)> kinds{kind_of<Args>()...};
        std::size_t next = 0;
        const auto take = [&](Kind expected) {
            if (expected == Kind::none || next >= kinds.size() || kinds[next++] != expected) {
                does_not_fit_its_arguments();
            }
        };
        for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(1)) {
            if (rest.front() != '%') {
                continue;
            }
            rest.remove_prefix(1);
            if (rest.starts_with('%')) {
                continue;
            }
            for (; is_one_of(rest, "-+ #0123456789*"); rest.remove_prefix(1)) {
                if (rest.front() == '*') {
                    take(Kind::number);
                }
            }
            const bool is_long = is_one_of(rest, "lz");
            if (is_long) {
                rest.remove_prefix(1);
            }
            const Kind any_number = is_long ? Kind::long_number : Kind::number;
            take(is_one_of(rest, "s") ? Kind::text : is_one_of(rest, "duxXc") ? any_number : Kind::none);
        }
        if (next != kinds.size()) {
            does_not_fit_its_arguments();
        }
    }

    [[nodiscard]] constexpr const char *text() const { return text_; }

private:
    enum class Kind : std::uint8_t { none, number, long_number, text };

    template <class Arg>
    static consteval Kind kind_of()
    {
        using Passed = decltype(printf_argument(std::declval<const Arg &>()));
        if constexpr (std::is_same_v<Passed, const char *>) {
            return Kind::text;
        } else {
            return sizeof(Passed) == sizeof(std::uint64_t) ? Kind::long_number : Kind::number;
        }
    }

    static constexpr bool is_one_of(std::string_view rest, std::string_view set)
    {
        return !rest.empty() && set.find(rest.front()) != std::string_view::npos;
    }

    static void does_not_fit_its_arguments() {} // not constexpr: reaching it is the compiler's error

    const char *text_;
};

} // namespace l2fib
