#include "recording/schema/value_log.h"

namespace recording
{

std::string LoggedValue::identity() const
{
    std::string key = path.substr(path.rfind('.') + 1);
    if (!place || place->record == nullptr) {
        return key;
    }
    const std::string name = std::string(place->record->name) + '.' + std::string(place->field->name);
    const bool has_its_name = key == place->field->name || key == place->name();
    return has_its_name ? name : name + ':' + key;
}

LoggedValue &ValueLog::add(const Source &source, std::string_view key)
{
    const auto place = source.field == nullptr ? std::nullopt : map().place_of(source.field);
    std::string path = this->path();
    path += path.empty() ? "" : ".";
    path += key;
    return values_.emplace_back(LoggedValue{std::move(path), place, std::nullopt, {}, {}});
}

void ValueLog::value(const Value &value)
{
    if (!in_failure_) {
        LoggedValue &logged = add(value.source, key_of(value));
        logged.printed = value;
        logged.label = value.label;
        logged.text = value.printed;
    }
}

void ValueLog::open_flags(std::span<const Source> words)
{
    for (const Source &word : words) {
        add(word, name_of(word));
    }
}

} // namespace recording
