// Texts that are kept as files of tests/screens.
#pragma once

#include "tests/support/printed.h"

#include <sstream>
#include <string>

namespace l2fib
{

/// Compares a text with a file of tests/screens. With L2FIB_ACCEPT_SCREENS in the environment it is written there
/// instead, for git to show what has changed.
void expect_golden(const std::string &file, const std::string &text);

/// What several calls have shown, each below its title.
class Scenes
{
public:
    void add(const std::string &title, const Shown &shown) { text_ << "== " << title << '\n' << shown << '\n'; }

    [[nodiscard]] std::string text() const { return text_.str(); }

private:
    std::ostringstream text_;
};

} // namespace l2fib
