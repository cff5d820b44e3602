#include "recording/schema/members.h"

namespace recording
{

using nlohmann::json;

static std::string type_of(const json &value)
{
    return value.is_number_integer() ? "integer" : value.is_boolean() ? "boolean" : value.type_name();
}

void Members::add(const json &value)
{
    ++count_;
    types_.insert(type_of(value));
    if (value.is_object()) {
        for (const auto &[key, member] : value.items()) {
            members_[key].add(member);
        }
    } else if (value.is_array() && !value.empty()) {
        if (elements_.empty()) {
            elements_.emplace_back();
        }
        for (const json &element : value) {
            elements_.front().add(element);
        }
    }
}

json Members::required() const
{
    json required = json::array();
    for (const auto &[key, member] : members_) {
        if (member.count_ == count_) {
            required.push_back(key);
        }
    }
    return required;
}

json Members::schema() const
{
    json schema = {{"type", types_.size() == 1 ? json(*types_.begin()) : json(types_)}};
    if (!elements_.empty()) {
        schema["items"] = elements_.front().schema();
    }
    if (!members_.empty()) {
        for (const auto &[key, member] : members_) {
            schema["properties"][key] = member.schema();
        }
        if (json always = required(); !always.empty()) {
            schema["required"] = std::move(always);
        }
    }
    return schema;
}

std::string Members::type() const
{
    std::string all;
    for (const std::string &type : types_) {
        all += all.empty() ? "" : " or ";
        all += type;
    }
    return elements_.empty() ? all : all + " of " + elements_.front().type() + 's';
}

} // namespace recording
