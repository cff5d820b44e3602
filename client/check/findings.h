// What a check finds in an object.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

enum class Level : std::uint8_t {
    error,      ///< some traffic goes wrong
    note,       ///< worth a look; it can be right
    may_differ, ///< rightly differs from NP to NP, most often
};

/// Where something is in the show data.
struct ByteRange {
    std::size_t offset;
    std::size_t width;
};

/// What one or several of the RP and the NPs say.
struct Statement {
    std::vector<std::string> parties;    ///< "RP", "NP1"
    std::string text;                    ///< as on the screen
    std::optional<std::uint64_t> number; ///< that the text stands for, when it is no number itself
    bool is_odd = false;                 ///< others say something else, and are more
    std::string path;                    ///< of the first party's value in the JSON of the view
    std::optional<ByteRange> bytes;      ///< of it
};

struct Finding {
    Level level;
    std::string what; ///< "split-horizon group"
    std::string who;  ///< "NP1 stands alone"
    std::vector<Statement> statements;
    std::string meaning; ///< for traffic, in a sentence
};

} // namespace l2fib
