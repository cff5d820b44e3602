#include "recording/naming_recorder.h"

#include <algorithm>
#include <cstring>

namespace recording
{

std::string key_of_label(std::string_view label)
{
    std::string key;
    for (const char c : label) {
        const bool is_upper = c >= 'A' && c <= 'Z';
        const bool is_letter = is_upper || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        if (is_letter) {
            key += is_upper ? static_cast<char>(c - 'A' + 'a') : c;
        } else if (!key.empty() && key.back() != '_') {
            key += '_';
        }
    }
    while (!key.empty() && key.back() == '_') {
        key.pop_back();
    }
    return key;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

void NamingRecorder::begin_view(std::span<const std::uint8_t> show_data)
{
    map_.begin(show_data);
    scopes_.assign(1, Scope{"", false, 0});
}

void NamingRecorder::enter_section(const char *key)
{
    scopes_.push_back({key, false, 0});
}

std::size_t NamingRecorder::enter_element(const char *key)
{
    Scope &outer = scopes_.back();
    if (outer.last_elements == nullptr || std::strcmp(outer.last_elements, key) != 0) {
        outer.last_elements = key;
        outer.elements = 0;
    }
    const std::size_t index = outer.elements++;
    scopes_.push_back({key, true, index});
    return index;
}

void NamingRecorder::leave()
{
    scopes_.pop_back();
}

std::string NamingRecorder::path() const
{
    std::string path;
    for (const Scope &scope : scopes_) {
        path += path.empty() ? "" : ".";
        path += scope.key;
        if (scope.is_element) {
            path += '[' + std::to_string(scope.index) + ']';
        }
    }
    return path;
}

std::string_view NamingRecorder::label_key(std::string_view label)
{
    std::string &key = label_keys_[label.data()];
    if (key.empty()) {
        key = key_of_label(label.ends_with("0x") ? label.substr(0, label.size() - 2) : label);
    }
    return key;
}

std::string_view NamingRecorder::name_of(const Source &source)
{
    const auto place = map_.place_of(source.field);
    if (!place || place->field == nullptr) {
        return {};
    }
    if (!place->field->is_array) {
        return place->field->name;
    }
    name_ = place->name();
    return name_;
}

std::string_view NamingRecorder::key_of(const Value &value)
{
    if (value.source.key != nullptr) {
        return value.source.key;
    }
    const std::string_view name =
        value.source.field == nullptr || value.source.is_part ? std::string_view{} : name_of(value.source);
    return name.empty() ? label_key(value.label) : name;
}

} // namespace recording
