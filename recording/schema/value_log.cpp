#include "recording/schema/value_log.h"

namespace recording
{

/// The record that has a field of its own, among a record and those within it.
static const RecordInfo *record_of(const RecordInfo *record, const FieldInfo *wanted)
{
    for (const FieldInfo &field : record->fields) {
        if (&field == wanted) {
            return record;
        }
        if (const RecordInfo *found = field.record == nullptr ? nullptr : record_of(field.record, wanted)) {
            return found;
        }
    }
    return nullptr;
}

static const RecordInfo *record_of(const ShowDataMap &map, const FieldInfo *field)
{
    for (const ShowDataMap::Run &run : map.runs()) {
        if (const RecordInfo *found = record_of(run.type, field)) {
            return found;
        }
    }
    return nullptr;
}

std::string LoggedValue::identity() const
{
    std::string key = path.substr(path.rfind('.') + 1);
    if (record == nullptr) {
        return key;
    }
    const std::string name = std::string(record->name) + '.' + std::string(place->field->name);
    const bool has_its_name = key == place->field->name || key == place->name();
    return has_its_name ? name : name + ':' + key;
}

LoggedValue &ValueLog::add(const Source &source, std::string_view key)
{
    const auto place = source.field == nullptr ? std::nullopt : map().place_of(source.field);
    const bool is_known = place && place->field != nullptr;
    std::string path = this->path();
    path += path.empty() ? "" : ".";
    path += key;
    return values_.emplace_back(
        LoggedValue{std::move(path), is_known ? record_of(map(), place->field) : nullptr, place, std::nullopt, {}, {}});
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
