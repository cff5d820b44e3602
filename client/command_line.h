// What the command line may hold, and what is said of one that holds something else.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace l2fib
{

/// Has an option's argument be one of some words.
CLI::Validator one_of(const std::vector<std::string> &words);

/// The words that an option's argument has to be one of; none when it may be anything.
std::vector<std::string> words_of(CLI::Option &option);

/// Has an option's argument be a number as captures have it. CLI11 is handed it in plain decimal: by its own rules, a
/// number that begins with 0 is octal.
CLI::Validator number_up_to(std::uint64_t highest);

/// Refuses a number with zeros in front, which screens have in hex only: 00340003 may be part of 0x00340003. To be used
/// before number_up_to.
CLI::Validator no_zeros_in_front();

/// What is wrong with a command line: the word or the option, and then what may be in its place.
std::string explain(const CLI::App &app, const CLI::ParseError &error);

} // namespace l2fib
