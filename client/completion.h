// What may come next on a command line, for the shells. The command line is defined once, and they all ask for it.
#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>

namespace l2fib
{

/// The words that go on with the last one: a line for each, with a tab and a description. The line "FILE" is the name
/// of any file.
std::string completions(CLI::App &app, std::span<const char *const> words);

} // namespace l2fib
