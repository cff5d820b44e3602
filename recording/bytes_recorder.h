// The show data of a view, run by run: what each field is, and where the screen shows it.
#pragma once

#include "recording/naming_recorder.h"

namespace recording
{

/// A value that a view has made of some bytes.
struct ShownValue {
    std::string path; ///< of its member in the JSON of the view
    std::string text; ///< as printed; of flags, the names of those that are set
};

/// Bytes next to each other that are about one thing.
struct ByteRun {
    std::size_t offset;
    std::size_t size;
    std::string field;              ///< "XidEntry.vpn_id"; empty where no record is known
    std::vector<ShownValue> values; ///< none where no line shows the bytes
};

/// Takes down which bytes the values of a view come from.
class BytesRecorder : public NamingRecorder
{
public:
    BytesRecorder() { map().keep_all(); }

    void begin(std::span<const std::uint8_t> show_data)
    {
        begin_view(show_data), size_ = show_data.size(), shown_.clear();
    }

    void open_section(const char *key) override { enter_section(key); }
    void open_element(const char *key) override { enter_element(key); }
    void close() override { leave(); }
    void value(const Value &value) override;
    void open_flags(std::span<const Source> words) override;
    void flag(std::string_view name) override;
    void unnamed_flags(std::uint32_t /*bits*/) override {}
    void close_flags() override;
    void open_failure() override { in_failure_ = true; }
    void close_failure(std::string_view /*text*/) override { in_failure_ = false; }

    /// All of the show data in runs, once the view has ended.
    [[nodiscard]] std::vector<ByteRun> runs();

private:
    struct Shown {
        std::size_t offset;
        std::size_t size;
        ShownValue value;
    };

    void show(const Source &source, std::string_view key, std::string text);

    std::size_t size_ = 0;
    std::vector<Shown> shown_;
    std::vector<Source> flag_words_;
    std::string flag_names_;
    bool in_failure_ = false;
};

} // namespace recording
