// What views print, as JSON.
#pragma once

#include "recording/failure_notes.h"
#include "recording/json_writer.h"
#include "recording/naming_recorder.h"

#include <optional>
#include <string>
#include <vector>

namespace recording
{

/// Writes the values of a view as members of the object that is open in a JsonWriter.
class JsonRecorder : public NamingRecorder
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
    void open_failure() override { failures_.open(path()); }
    void close_failure(std::string_view text) override { failures_.close(text); }

private:
    void number(std::string_view key, const Value &value);
    void companion(std::string_view key, std::string_view suffix, std::string_view json);

    JsonWriter &json_;
    std::span<const std::uint8_t> received_;
    std::string companion_;
    std::string hex_;
    FailureNotes failures_;

    std::vector<Source> flag_words_;
    std::vector<std::string> flag_names_;
    std::optional<std::uint32_t> unnamed_; ///< none where the view does not say
    const void *last_flags_ = nullptr;
};

} // namespace recording
