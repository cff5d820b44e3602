#include "recording/schema/check.h"

#include "client/schema.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

namespace recording
{

using nlohmann::json;

json parse_line(std::string_view line)
{
    std::vector<std::set<std::string>> keys; // of the objects that are open
    return json::parse(line, [&](int /*depth*/, json::parse_event_t event, const json &parsed) {
        if (event == json::parse_event_t::object_start) {
            keys.emplace_back();
        } else if (event == json::parse_event_t::object_end) {
            keys.pop_back();
        } else if (event == json::parse_event_t::key) {
            const auto key = parsed.get<std::string>();
            if (key.empty() || !keys.back().insert(key).second) {
                throw std::runtime_error(key.empty() ? "an empty key" : "twice in an object: " + key);
            }
        }
        return true;
    });
}

static bool has_type(const json &value, const std::string &type)
{
    return type == (value.is_number_integer() ? "integer" : value.is_boolean() ? "boolean" : value.type_name());
}

static bool has_members(const json &value, const json &required)
{
    return std::all_of(required.begin(), required.end(),
                       [&](const json &key) { return value.contains(key.get<std::string>()); });
}

static std::string violation(const json &value, const json &schema, const std::string &path)
{
    if (!has_type(value, schema.at("type"))) {
        return path + " is no " + schema.at("type").get<std::string>();
    }
    if (schema.contains("const") && schema.at("const") != value) {
        return path + " has another value";
    }
    if (schema.contains("enum") && std::count(schema.at("enum").begin(), schema.at("enum").end(), value) == 0) {
        return path + " is none of those that there are";
    }
    if (schema.contains("required") && !has_members(value, schema.at("required"))) {
        return path + " has not all that is required";
    }
    std::string found;
    if (value.is_object()) {
        const json properties = schema.value("properties", json::object());
        for (auto member = value.begin(); member != value.end() && found.empty(); ++member) {
            const std::string member_path = path + '.' + member.key();
            const auto known = properties.find(member.key());
            found =
                known == properties.end() ? member_path + " is not published" : violation(*member, *known, member_path);
        }
    } else if (value.is_array() && !value.empty()) {
        if (!schema.contains("items")) {
            return path + " is empty as published";
        }
        for (auto element = value.begin(); element != value.end() && found.empty(); ++element) {
            found = violation(*element, schema.at("items"), path + "[]");
        }
    }
    return found;
}

/// Whether a view's part of the schema is about a line.
static bool is_about(const json &condition, const json &line)
{
    const json &constants = condition.at("properties");
    return std::all_of(constants.items().begin(), constants.items().end(), [&](const auto &constant) {
        return line.contains(constant.key()) && line.at(constant.key()) == constant.value().at("const");
    });
}

PublishedSchema::PublishedSchema() : any_(json::parse(l2fib::published_schema()))
{
    for (const json &view : any_.at("allOf")) {
        json whole = {{"type", "object"}, {"properties", any_.at("properties")}};
        whole["properties"].update(view.at("then").value("properties", json::object()));
        whole["required"] = view.at("then").at("required");
        views_.emplace_back(view.at("if"), std::move(whole));
    }
}

std::string PublishedSchema::violation(const json &line) const
{
    const json &kinds = any_.at("anyOf");
    if (std::none_of(kinds.begin(), kinds.end(),
                     [&](const json &kind) { return has_members(line, kind.at("required")); })) {
        return "the line has not what any kind of lines has";
    }
    const auto view =
        std::find_if(views_.begin(), views_.end(), [&](const auto &row) { return is_about(row.first, line); });
    return recording::violation(line, view == views_.end() ? any_ : view->second, "line");
}

} // namespace recording
