// The word that somebody meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace l2fib
{

/// "; did you mean WORD?" for the word that differs by few letters, by two that changed places, or that begins so;
/// empty when none does.
std::string did_you_mean(std::string_view given, std::span<const std::string> words);

} // namespace l2fib
