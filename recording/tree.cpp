#include "recording/tree.h"

#include <cstring>

namespace recording
{

void Tree::begin(std::span<const std::uint8_t> show_data)
{
    begin_view(show_data);
    texts_.release();
    values_.clear();
    flags_.clear();
    failures_.clear();
    failure_sections_.clear();
    sections_.assign(1, TreeSection{0, "", false, 0, pattern_of(""), std::nullopt});
    section_ = 0;
    last_word_ = nullptr;
}

/// A copy that lives as long as the view.
std::string_view Tree::kept(std::string_view text)
{
    if (text.empty()) {
        return {};
    }
    auto *copy = static_cast<char *>(texts_.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

void Tree::open(const char *key, bool is_element, std::uint32_t index)
{
    const TreeSection &outer = sections_[section_];
    const Pattern prefix = section_ == 0 ? outer.pattern : pattern_of(".", outer.pattern);
    const Pattern pattern = pattern_of(is_element ? "[]" : "", pattern_of(key, prefix));
    sections_.push_back({section_, key, is_element, index, pattern, outer.np});
    section_ = static_cast<std::uint32_t>(sections_.size() - 1);
    last_word_ = nullptr;
}

void Tree::open_section(const char *key)
{
    enter_section(key);
    open(key, false, 0);
}

void Tree::open_element(const char *key)
{
    open(key, true, static_cast<std::uint32_t>(enter_element(key)));
}

void Tree::close()
{
    leave();
    section_ = sections_[section_].parent;
    last_word_ = nullptr;
}

TreeValue &Tree::add(std::string_view key)
{
    TreeValue &value = values_.emplace_back();
    value.section = section_;
    value.key = key;
    const Pattern section = sections_[section_].pattern;
    value.pattern = pattern_of(key, section_ == 0 ? section : pattern_of(".", section));
    return value;
}

void Tree::value(const Value &value)
{
    if (failures_.is_open()) {
        failures_.take(value);
        return;
    }
    if (value.source.is_said) {
        return;
    }
    const std::string_view key = key_of(value);
    TreeValue &added = add(is_lasting(key) ? key : kept(key));
    added.label = value.label;
    added.text = value.kind == Value::truth ? (value.number != 0 ? "true" : "false") : kept(trimmed(value.printed));
    added.has_number = value.kind != Value::text || value.source.has_number;
    added.number = value.kind != Value::text ? value.number : value.source.number;
    added.is_wide = value.is_wide || value.source.width == sizeof(std::uint64_t);
    added.place = value.source.field == nullptr ? std::nullopt : map().place_of(value.source.field);
    added.width = value.source.width;
    TreeSection &section = sections_[section_];
    if (section.is_element && added.has_number && key == "np") {
        section.np = value.number;
    }
}

void Tree::open_flags(std::span<const Source> words)
{
    words_.assign(words.begin(), words.end());
    flags_before_ = flags_.size();
}

void Tree::close_flags()
{
    if (words_.front().field == last_word_) {
        flags_.resize(flags_before_); // some of the same flags, once more
        return;
    }
    last_word_ = words_.front().field;
    for (const Source &word : words_) {
        const std::string_view key = name_of(word);
        TreeValue &added = add(is_lasting(key) ? key : kept(key));
        added.is_word = true;
        added.place = map().place_of(word.field);
        added.width = word.width;
        added.first_flag = static_cast<std::uint32_t>(flags_before_);
        added.flags = &word == &words_.front() ? static_cast<std::uint32_t>(flags_.size() - flags_before_) : 0;
    }
}

std::vector<std::size_t> Tree::records_named(std::string_view type) const
{
    std::vector<std::size_t> offsets;
    for (const ShowDataMap::Run &run : map().runs()) {
        for (std::size_t i = 0; run.type->name == type && i < run.count; ++i) {
            offsets.push_back(run.offset + i * run.size);
        }
    }
    return offsets;
}

std::string Tree::path_of(std::uint32_t section) const
{
    if (section == 0) {
        return {};
    }
    const TreeSection &at = sections_[section];
    std::string path = path_of(at.parent);
    path += path.empty() ? "" : ".";
    path += at.key;
    if (at.is_element) {
        path += '[' + std::to_string(at.index) + ']';
    }
    return path;
}

std::string Tree::path_of(const TreeValue &value) const
{
    std::string path = path_of(value.section);
    path += path.empty() ? "" : ".";
    path += value.key;
    return path;
}

} // namespace recording
