// Whether lines of JSON are what the published schema says.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace recording
{

/// A line of JSON. Throws for what is not valid, and for a key that is empty or twice in an object.
nlohmann::json parse_line(std::string_view line);

/// The schema that l2fib-show publishes. It is stricter here than as a JSON Schema: a member that it does not know is
/// one that was added without being published.
class PublishedSchema
{
public:
    PublishedSchema();

    /// What is wrong with a line, and where; nothing for a line that is as published.
    [[nodiscard]] std::string violation(const nlohmann::json &line) const;

private:
    nlohmann::json any_;
    std::vector<std::pair<nlohmann::json, nlohmann::json>> views_; ///< which lines, and all that they have
};

} // namespace recording
