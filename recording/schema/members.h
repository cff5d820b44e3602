// The members that lines of JSON have, and their JSON Schema.
#pragma once

#include <cstddef>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

namespace recording
{

/// All values at one place of the lines.
class Members
{
public:
    void add(const nlohmann::json &value);

    /// As a JSON Schema. Members that every one of the objects has are required.
    [[nodiscard]] nlohmann::json schema() const;

    /// Those members.
    [[nodiscard]] nlohmann::json required() const;

    /// The types of a value: "integer", "array of strings".
    [[nodiscard]] std::string type() const;

    [[nodiscard]] const std::map<std::string, Members> &members() const { return members_; }

    /// The elements of an array; null without one.
    [[nodiscard]] const Members *elements() const { return elements_.empty() ? nullptr : &elements_.front(); }

private:
    std::size_t count_ = 0;
    std::set<std::string> types_;
    std::map<std::string, Members> members_;
    std::vector<Members> elements_; // one, where there is an array with elements
};

} // namespace recording
