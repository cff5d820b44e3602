// What a recorded view says: the values that it prints, each with the field that it was made from, and what they are
// about.
//
// The library's views are compiled once more for this, with the headers of recording/common/ in the place of two of
// theirs and under names of their own (recording/names.h). They report here; the text that they print is the library's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string_view>
#include <utility>

namespace recording
{

struct RecordInfo;

enum class FieldKind : std::uint8_t {
    number, ///< big-endian
    stored, ///< in the byte order of the line card's processor
    packed, ///< bits, from the top of a big-endian word
    bytes,  ///< an address, flags by byte, or what is not read
    record, ///< fields of its own
};

/// A field of a record, or an array of such fields.
struct FieldInfo {
    std::string_view name;
    std::size_t offset;
    std::size_t size; ///< of one
    std::size_t count;
    bool is_array;
    FieldKind kind;
    const RecordInfo *record;             ///< null unless it has fields of its own
    std::span<const std::uint8_t> stored; ///< the sizes of the numbers that the line card has stored in it
};

struct RecordInfo {
    std::string_view name;
    std::size_t size;
    std::span<const FieldInfo> fields;
    std::span<const std::uint8_t> field_at; ///< the index of the field at each offset; none of very long records
};

/// Where a printed value comes from.
struct Source {
    const void *field = nullptr; ///< where a view has it, in the show data or a copy; null when it is no field's
    std::size_t width = 0;       ///< in bytes
    std::uint64_t number = 0;    ///< that the field holds, sign-extended
    const char *key = nullptr;   ///< what to call the value, where not by its field
    bool has_number = false;
    bool is_part = false; ///< of a packed word, which has other parts
    bool is_made = false; ///< the printed value is not the field's number
    bool is_said = false; ///< the same value has been recorded of the same thing
};

/// A value as it is printed.
struct Value {
    enum Kind : std::uint8_t { text, signed_number, unsigned_number, hex_number, truth };

    Kind kind;
    bool is_wide;             ///< of 64 bits
    std::uint64_t number;     ///< sign-extended
    std::string_view label;   ///< the text in front of it
    std::string_view printed; ///< blanks around it included
    Source source;
};

/// What takes down the values of a view in their order. Scopes are closed in the reverse order of their opening.
class Recorder
{
public:
    Recorder() = default;
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;
    virtual ~Recorder() = default;

    virtual void open_section(const char *key) = 0;
    virtual void open_element(const char *key) = 0;
    virtual void close() = 0;
    virtual void value(const Value &value) = 0;

    /// Flags that are set, of one or several words.
    virtual void open_flags(std::span<const Source> words) = 0;
    virtual void flag(std::string_view name) = 0;
    virtual void unnamed_flags(std::uint32_t bits) = 0; ///< set, and not among those that can be named: by number
    virtual void close_flags() = 0;

    /// What the text says about what is missing. Numbers that are printed meanwhile are values of the failure.
    virtual void open_failure() = 0;
    virtual void close_failure(std::string_view text) = 0;

    virtual void reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count) = 0;
    virtual void copied(const void *to, const void *from, std::size_t size) = 0;
};

/// Who takes down what views print now; null for nobody. One thread at a time.
extern Recorder *current;

/// Where the text of views goes. At first it goes nowhere.
extern std::FILE *text_stream;
extern std::FILE *const nowhere;

/// Has views report to a recorder for as long as it lives, and print to a stream.
class Recording
{
public:
    explicit Recording(Recorder &recorder, std::FILE *text = text_stream)
        : recorder_before_(std::exchange(current, &recorder)), text_before_(std::exchange(text_stream, text))
    {
    }
    ~Recording()
    {
        current = recorder_before_;
        text_stream = text_before_;
    }
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;

private:
    Recorder *recorder_before_;
    std::FILE *text_before_;
};

} // namespace recording
