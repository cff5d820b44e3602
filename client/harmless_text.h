// Text of others, fit for a terminal: show data, captures, file names and what a platform says may hold escape
// sequences, which a terminal obeys.
#pragma once

#include <string>
#include <string_view>

namespace l2fib
{

/// Text that comes in pieces, which may end within a character. Line ends and tabs stay, and so do the characters that
/// the locale can print; of all else, each byte is spelled out: \x1b.
class HarmlessText
{
public:
    /// What is harmless of the text so far, but for what was returned before.
    std::string add(std::string_view piece);

    /// What is left of a text that ends within a character.
    std::string finish();

private:
    std::string unfinished_;
};

/// The same of a whole text that is to be one line.
std::string harmless_line(std::string_view text);

} // namespace l2fib
