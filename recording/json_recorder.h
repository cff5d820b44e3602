// What views print, as JSON.
#pragma once

#include "recording/json_writer.h"
#include "recording/show_data_map.h"

#include <unordered_map>

namespace recording
{

/// The key of a label: "Learn Limit Count Index: " is learn_limit_count_index.
std::string key_of_label(std::string_view label);

/// A text without the blanks around it.
std::string_view trimmed(std::string_view text);

/// Writes the values of a view as members of the object that is open in a JsonWriter.
class JsonRecorder : public Recorder
{
public:
    explicit JsonRecorder(JsonWriter &json) : json_(json) {}

    /// Begins a view. `received` is a copy of the show data as it came.
    void begin(std::span<const std::uint8_t> show_data, std::span<const std::uint8_t> received);

    /// Ends it: writes what failed.
    void end();

    void open_section(const char *key) override;
    void open_element(const char *key) override;
    void close() override;
    void value(const Value &value) override;
    void open_flags(std::span<const Source> words) override;
    void flag(std::string_view name) override;
    void unnamed_flags(std::uint32_t bits) override;
    void close_flags() override;
    void open_failure() override;
    void close_failure(std::string_view text) override;
    void reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count) override
    {
        map_.reached(type, first, size, count);
    }
    void copied(const void *to, const void *from, std::size_t size) override { map_.copied(to, from, size); }

private:
    struct FailureNote {
        std::string at;
        std::string text;
        std::optional<std::uint64_t> there;
        std::optional<std::uint64_t> needed;
    };

    [[nodiscard]] std::string_view key_of(const Value &value);
    [[nodiscard]] std::string_view name_of(const Source &source);
    std::string_view label_key(std::string_view label);
    void number(std::string_view key, const Value &value);
    void companion(std::string_view key, std::string_view suffix, std::string_view json);
    void note_failure_number(const Value &value);

    JsonWriter &json_;
    ShowDataMap map_;
    std::span<const std::uint8_t> received_;
    std::unordered_map<const char *, std::string> label_keys_;
    std::string name_;
    std::string companion_;
    std::vector<std::string_view> path_;
    std::vector<FailureNote> failures_;
    bool in_failure_ = false;

    std::vector<Source> flag_words_;
    std::vector<std::string> flag_names_;
    std::uint32_t unnamed_ = 0;
    const void *last_flags_ = nullptr;
};

} // namespace recording
