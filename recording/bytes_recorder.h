// The show data of a view, run by run: what each field is, and where the screen shows it.
#pragma once

#include "recording/naming_recorder.h"

#include <functional>

namespace recording
{

/// A value that a view has made of some bytes.
struct ShownValue {
    std::size_t offset;
    std::size_t size;
    std::string path; ///< of its member in the JSON of the view
    std::string text; ///< as printed; of flags, those that are set, by name or #NUMBER
};

/// Bytes next to each other that are about one thing.
struct ByteRun {
    std::size_t offset = 0;
    std::size_t size = 0;
    std::string_view record;            ///< "VplsNpRecord"; empty where none is known
    std::size_t record_offset = 0;      ///< where that one begins
    std::size_t record_size = 0;        ///< all of it
    std::string field;                  ///< of the record: "xid.vpn_id"
    std::span<const ShownValue> values; ///< none where no line shows the bytes
};

/// Takes down which bytes the values of a view come from.
class BytesRecorder : public NamingRecorder
{
public:
    BytesRecorder() { map().keep_all(); }

    void begin(std::span<const std::uint8_t> show_data)
    {
        begin_view(show_data);
        size_ = show_data.size();
        shown_.clear();
        failures_.clear();
        last_flags_ = nullptr;
    }

    void open_section(const char *key) override { enter_section(key), last_flags_ = nullptr; }
    void open_element(const char *key) override { enter_element(key), last_flags_ = nullptr; }
    void close() override { leave(), last_flags_ = nullptr; }
    void value(const Value &value) override;
    void open_flags(std::span<const Source> words) override;
    void flag(std::string_view name) override;
    void unnamed_flags(std::uint32_t bits) override;
    void close_flags() override;
    void open_failure() override { in_failure_ = true; }
    void close_failure(std::string_view text) override { in_failure_ = false, failures_.emplace_back(text); }

    /// Hands out all of the show data in runs, in its order, once the view has ended.
    void for_each_run(const std::function<void(const ByteRun &run)> &take);

    /// What the text says about what is missing.
    [[nodiscard]] std::span<const std::string> failures() const { return failures_; }

private:
    void show(const Source &source, std::string_view key, std::string text);

    std::size_t size_ = 0;
    std::vector<ShownValue> shown_;
    std::vector<std::string> failures_;
    std::vector<Source> flag_words_;
    std::string flag_names_;
    const void *last_flags_ = nullptr;
    bool in_failure_ = false;
};

} // namespace recording
