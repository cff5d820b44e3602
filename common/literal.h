// Texts that are written in the code.
#pragma once

#include <cstddef>
#include <string_view>

namespace l2fib
{

/// A text of at most longest_short_text characters, as all are but those of the show data and of the router.
class ShortText
{
public:
    constexpr ShortText(const char *chars, std::size_t size) : chars_(chars), size_(size) {}

    [[nodiscard]] constexpr const char *data() const { return chars_; }
    [[nodiscard]] constexpr std::size_t size() const { return size_; }
    constexpr operator std::string_view() const { return {chars_, size_}; }

private:
    const char *chars_;
    std::size_t size_;
};

constexpr std::size_t longest_short_text = 80;

/// A text whose length the compiler knows. Null where a row of a table has none.
struct Literal {
    consteval Literal(const char *text) : chars(text), size(text == nullptr ? 0 : std::string_view(text).size())
    {
        if (size > longest_short_text) {
            is_too_long();
        }
    }

    const char *chars;
    std::size_t size;

private:
    static void is_too_long() {} // not constexpr: a call when compiling is an error
};

} // namespace l2fib
