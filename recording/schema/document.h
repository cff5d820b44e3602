// The document of the lines: each path, its type, where it comes from and what it means.
#pragma once

#include "recording/schema/lines.h"

#include <iosfwd>

namespace l2fib
{

/// What values mean, by what they are.
class Meanings
{
public:
    /// Reads lines of an identity, a tab and a meaning.
    explicit Meanings(std::istream &table);

    /// The meaning of a value. What has none is noted.
    std::string of(const std::string &identity);

    [[nodiscard]] bool has(const std::string &identity) const { return meanings_.contains(identity); }

    /// What was asked for and has no meaning, and what has one and was not asked for.
    [[nodiscard]] std::vector<std::string> complaints() const;

private:
    std::map<std::string, std::string> meanings_;
    std::set<std::string> used_;
    std::set<std::string> missing_;
};

/// A table of all paths, in Markdown.
std::string table_of_paths(const Lines &lines, Meanings &meanings);

} // namespace l2fib
