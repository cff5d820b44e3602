// Standard output and standard error as somebody sees them, on a terminal or in one file.
#pragma once

#include <cstdio>

namespace l2fib
{

/// Takes standard output over as long as it lives, on a terminal, to make what goes there harmless, and where standard
/// error goes to the same place: texts of views have no line end, and messages come after them. Elsewhere standard
/// output is left alone.
class Screen
{
public:
    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

private:
    std::FILE *own_ = nullptr; ///< what was standard output; null when it was left alone
};

/// Has bytes go to a terminal as they are, as long as it lives: those that are wanted so, and the client's own colours.
class UnchangedText
{
public:
    UnchangedText();
    ~UnchangedText();
    UnchangedText(const UnchangedText &) = delete;
    UnchangedText &operator=(const UnchangedText &) = delete;

private:
    bool was_changed_;
};

/// Ends the line that text on the screen is in, before a message comes after it.
void end_screen_line();

} // namespace l2fib
