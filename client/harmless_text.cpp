#include "client/harmless_text.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <locale.h>
#include <utility>

namespace l2fib
{

static bool is_plain(char c)
{
    return (c >= ' ' && c <= '~') || c == '\n' || c == '\t';
}

static void spell_out(std::string &result, std::string_view bytes)
{
    for (const char byte : bytes) {
        std::array<char, sizeof "\\xff"> code{};
        std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned char>(byte));
        result += code.data();
    }
}

/// The user's locale, for this thread and as long as it lives: the library's texts are not to depend on it.
class UserLocale
{
public:
    UserLocale() : before_(uselocale(of_environment())) {}
    ~UserLocale() { uselocale(before_); }
    UserLocale(const UserLocale &) = delete;
    UserLocale &operator=(const UserLocale &) = delete;

private:
    static locale_t of_environment()
    {
        static const locale_t found = newlocale(LC_CTYPE_MASK, "", nullptr);
        static const locale_t locale = found != nullptr ? found : newlocale(LC_CTYPE_MASK, "C", nullptr);
        return locale;
    }

    locale_t before_;
};

/// What a text begins with.
struct Character {
    std::size_t size; ///< 0 for one that goes on after the text
    bool is_printable;
};

static Character first_character(std::string_view text)
{
    constexpr auto broken = static_cast<std::size_t>(-1);
    constexpr auto unfinished = static_cast<std::size_t>(-2);
    std::mbstate_t state{};
    wchar_t character = 0;
    const std::size_t size = std::mbrtowc(&character, text.data(), text.size(), &state);
    if (size == unfinished) {
        return {0, false};
    }
    if (size == broken || size == 0) {
        return {1, false};
    }
    return {size, std::iswprint(static_cast<std::wint_t>(character)) != 0 && wcwidth(character) > 0};
}

std::string HarmlessText::add(std::string_view piece)
{
    std::string joined;
    if (!unfinished_.empty()) {
        joined = std::exchange(unfinished_, {});
        piece = joined.append(piece);
    }
    std::string result;
    result.reserve(piece.size());
    const UserLocale locale;
    while (!piece.empty()) {
        const auto plain = std::find_if_not(piece.begin(), piece.end(), is_plain) - piece.begin();
        result += piece.substr(0, static_cast<std::size_t>(plain));
        piece.remove_prefix(static_cast<std::size_t>(plain));
        if (piece.empty()) {
            break;
        }
        const Character next = first_character(piece);
        if (next.size == 0) {
            unfinished_ = piece;
            break;
        }
        if (next.is_printable) {
            result += piece.substr(0, next.size);
        } else {
            spell_out(result, piece.substr(0, next.size));
        }
        piece.remove_prefix(next.size);
    }
    return result;
}

std::string HarmlessText::finish()
{
    std::string result;
    spell_out(result, std::exchange(unfinished_, {}));
    return result;
}

std::string harmless_line(std::string_view text)
{
    HarmlessText pieces;
    std::string result;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find_first_of("\n\t"));
        result += pieces.add(part);
        result += pieces.finish();
        text.remove_prefix(part.size());
        spell_out(result, text.substr(0, 1));
        text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    }
    return result;
}

} // namespace l2fib
