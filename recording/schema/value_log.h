// Every value of a view, with the field that it comes from: what the JSON's schema and its tests are made of.
#pragma once

#include "recording/naming_recorder.h"

#include <optional>

namespace recording
{

/// A value that a view has recorded.
struct LoggedValue {
    std::string path;             ///< of its member in the JSON of the view: "hw.nps[1].xid.vpn_id"
    std::optional<Place> place;   ///< none where it comes from no show data
    std::optional<Value> printed; ///< none of a word of flags
    std::string label;
    std::string text; ///< as printed

    /// What the value is, in whatever view: "XidEntry.vpn_id". One that is only made from a field has its key behind
    /// it, "XidEntry.type:control_word_enabled"; without a record, the key is all.
    [[nodiscard]] std::string identity() const;

    /// Whether a line shows it.
    [[nodiscard]] bool is_on_screen() const { return printed && printed->label.data() != nullptr; }
};

class ValueLog : public NamingRecorder
{
public:
    void begin(std::span<const std::uint8_t> show_data) { begin_view(show_data), values_.clear(), flags_.clear(); }
    [[nodiscard]] const std::vector<LoggedValue> &values() const { return values_; }

    /// The names of flags, in the order of the screen.
    [[nodiscard]] const std::vector<std::string> &flags() const { return flags_; }

    void open_section(const char *key) override { enter_section(key); }
    void open_element(const char *key) override { enter_element(key); }
    void close() override { leave(); }
    void value(const Value &value) override;
    void open_flags(std::span<const Source> words) override;
    void flag(std::string_view name) override { flags_.emplace_back(name); }
    void unnamed_flags(std::uint32_t /*bits*/) override {}
    void close_flags() override {}
    void open_failure() override { in_failure_ = true; }
    void close_failure(std::string_view /*text*/) override { in_failure_ = false; }

private:
    LoggedValue &add(const Source &source, std::string_view key);

    std::vector<LoggedValue> values_;
    std::vector<std::string> flags_;
    bool in_failure_ = false;
};

} // namespace recording
