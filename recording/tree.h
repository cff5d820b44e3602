// All that a view says, to be looked at: its sections, their values, and where each one comes from.
#pragma once

#include "recording/failure_notes.h"
#include "recording/naming_recorder.h"

#include <array>
#include <memory_resource>

namespace recording
{

/// A path without the numbers of elements, "hw.nps[].xid.shg", as a number (FNV-1a). Every such path has one.
using Pattern = std::uint64_t;

constexpr Pattern pattern_of(std::string_view path, Pattern before = 0xcbf29ce484222325)
{
    for (const char c : path) {
        before = (before ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    }
    return before;
}

/// A part of the view. The first one is all of it.
struct TreeSection {
    std::uint32_t parent;
    const char *key;
    bool is_element;
    std::uint32_t index; ///< of an element, among those of its key
    Pattern pattern;
    std::optional<std::uint64_t> np; ///< of an element that is an NP's
};

struct TreeValue {
    std::uint32_t section;
    bool is_word; ///< of flags
    bool has_number;
    bool is_wide; ///< of 64 bits
    std::string_view key;
    std::string_view label; ///< the text in front of it
    std::string_view text;  ///< as printed, without blanks around it
    std::uint64_t number;   ///< that the text says; of a name, the number that has the name
    Pattern pattern;
    std::optional<Place> place; ///< of what it is made of, when that has a field
    std::size_t width;          ///< of it
    std::uint32_t first_flag;   ///< of a word, those that the screen names
    std::uint32_t flags;
};

/// Takes a view down. What it hands out is valid until the next view begins.
class Tree : public NamingRecorder
{
public:
    void begin(std::span<const std::uint8_t> show_data);

    [[nodiscard]] std::span<const TreeSection> sections() const { return sections_; }
    [[nodiscard]] std::span<const TreeValue> values() const { return values_; }
    [[nodiscard]] std::span<const FailureNote> failures() const { return failures_.notes(); }
    [[nodiscard]] std::uint32_t section_of_failure(std::size_t failure) const { return failure_sections_[failure]; }
    [[nodiscard]] std::span<const std::string_view> flags_of(const TreeValue &word) const
    {
        return std::span(flags_).subspan(word.first_flag, word.flags);
    }

    /// Where the records of a type begin, of those that the view has come to first. Of very long show data not all are
    /// known.
    [[nodiscard]] std::vector<std::size_t> records_named(std::string_view type) const;

    /// "hw.nps[1].xid.shg"
    [[nodiscard]] std::string path_of(const TreeValue &value) const;
    [[nodiscard]] std::string path_of(std::uint32_t section) const;

    void open_section(const char *key) override;
    void open_element(const char *key) override;
    void close() override;
    void value(const Value &value) override;
    void open_flags(std::span<const Source> words) override;
    void flag(std::string_view name) override { flags_.push_back(kept(trimmed(name))); }
    void unnamed_flags(std::uint32_t /*bits*/) override {}
    void close_flags() override;
    void open_failure() override { failures_.open(path()), failure_sections_.push_back(section_); }
    void close_failure(std::string_view text) override { failures_.close(text); }

private:
    void open(const char *key, bool is_element, std::uint32_t index);
    TreeValue &add(std::string_view key);
    [[nodiscard]] std::string_view kept(std::string_view text);

    std::array<char, 16384> first_texts_; // enough for most views
    std::pmr::monotonic_buffer_resource texts_{first_texts_.data(), first_texts_.size()};
    std::vector<TreeSection> sections_;
    std::vector<TreeValue> values_;
    std::vector<std::string_view> flags_;
    FailureNotes failures_;
    std::vector<std::uint32_t> failure_sections_;
    std::uint32_t section_ = 0;
    std::vector<Source> words_;
    std::size_t flags_before_ = 0;
    const void *last_word_ = nullptr;
};

} // namespace recording
