// What each recorded value is called.
#pragma once

#include "recording/show_data_map.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace recording
{

/// The key of a label: "Learn Limit Count Index: " is learn_limit_count_index.
std::string key_of_label(std::string_view label);

/// A text without the blanks around it.
std::string_view trimmed(std::string_view text);

/// Keeps account of where the view is, and names what it prints: by the key that the view gives, else by the field that
/// the value comes from, else by the label in front of it.
class NamingRecorder : public Recorder
{
public:
    void reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count) override
    {
        map_.reached(type, first, size, count);
    }
    void copied(const void *to, const void *from, std::size_t size) override { map_.copied(to, from, size); }

protected:
    /// Begins a view of other show data.
    void begin_view(std::span<const std::uint8_t> show_data);

    [[nodiscard]] const ShowDataMap &map() const { return map_; }
    [[nodiscard]] ShowDataMap &map() { return map_; }

    // A name is valid until the next one is asked for, and for good when it is lasting.
    [[nodiscard]] std::string_view key_of(const Value &value);
    [[nodiscard]] std::string_view name_of(const Source &source);

    [[nodiscard]] bool is_lasting(std::string_view name) const { return name.data() != name_.data(); }

    void enter_section(const char *key);
    std::size_t enter_element(const char *key); ///< returns how many of the key were before
    void leave();

    /// Where the view is: "hw.nps[1].xid", or empty.
    [[nodiscard]] std::string path() const;

private:
    struct Scope {
        const char *key;
        bool is_element;
        std::size_t index;
        const char *last_elements = nullptr; ///< the key of its last element
        std::size_t elements = 0;            ///< how many of that key there are
    };

    [[nodiscard]] std::string_view label_key(std::string_view label);

    ShowDataMap map_;
    std::vector<Scope> scopes_;
    std::unordered_map<const char *, std::string> label_keys_;
    std::string name_;
};

} // namespace recording
