// Standard output and standard error as somebody sees them, on a terminal or in one file.
#pragma once

#include <cstdio>
#include <string_view>

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

/// Writes a message to standard error, on a line of its own.
void write_message(std::string_view message);

/// Who gets messages in place of standard error, while there is one.
class MessageHolder
{
public:
    MessageHolder() = default;
    virtual ~MessageHolder() = default;
    MessageHolder(const MessageHolder &) = delete;
    MessageHolder &operator=(const MessageHolder &) = delete;

    virtual void hold(std::string_view message) = 0;
};
void hold_messages(MessageHolder *holder);

/// Whether text on the screen has not ended its line, so that a message has to.
bool is_in_screen_line();
void set_in_screen_line(bool is_in);

} // namespace l2fib
