#include "client/nearest_word.h"

#include <algorithm>
#include <array>

namespace l2fib
{

constexpr std::size_t longest_word = 32; // longer ones are no slips

/// How many letters were left out, added, changed, or changed places with the next one.
static std::size_t slips_between(std::string_view given, std::string_view word)
{
    std::array<std::array<std::size_t, longest_word + 1>, longest_word + 1> slips{}; // between their beginnings
    for (std::size_t i = 0; i <= given.size(); ++i) {
        for (std::size_t j = 0; j <= word.size(); ++j) {
            std::size_t &fewest = slips[i][j] = std::max(i, j);
            if (i == 0 || j == 0) {
                continue;
            }
            const std::size_t changed = given[i - 1] == word[j - 1] ? 0 : 1;
            fewest = std::min({slips[i - 1][j] + 1, slips[i][j - 1] + 1, slips[i - 1][j - 1] + changed});
            if (i > 1 && j > 1 && given[i - 1] == word[j - 2] && given[i - 2] == word[j - 1]) {
                fewest = std::min(fewest, slips[i - 2][j - 2] + 1);
            }
        }
    }
    return slips[given.size()][word.size()];
}

std::string did_you_mean(std::string_view given, std::span<const std::string> words)
{
    constexpr std::size_t shortest_beginning = 2;
    const std::size_t dashes = std::min(given.find_first_not_of('-'), given.size());
    const std::size_t letters = given.size() - dashes;
    const std::string *nearest = nullptr;
    std::size_t fewest = letters / 3 + 2;
    for (const std::string &word : words) {
        if (given.size() > longest_word || word.size() > longest_word) {
            continue;
        }
        const bool is_beginning = letters >= shortest_beginning && word.starts_with(given);
        const std::size_t slips = is_beginning ? 1 : slips_between(given, word);
        if (slips < fewest && slips < letters) {
            fewest = slips;
            nearest = &word;
        }
    }
    return nearest == nullptr ? "" : "; did you mean " + *nearest + "?";
}

} // namespace l2fib
