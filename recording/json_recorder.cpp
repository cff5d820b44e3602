#include "recording/json_recorder.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace recording
{

void JsonRecorder::begin(std::span<const std::uint8_t> show_data, std::span<const std::uint8_t> received)
{
    begin_view(show_data);
    received_ = received;
    failures_.clear();
    last_flags_ = nullptr;
}

void JsonRecorder::end()
{
    for (const FailureNote &failure : failures_.notes()) {
        json_.open_element("failures");
        json_.member("at", std::string_view(failure.at));
        json_.member("text", std::string_view(failure.text));
        if (failure.there) {
            json_.member("there", *failure.there);
        }
        if (failure.needed) {
            json_.member("needed", *failure.needed);
        }
        json_.close_object();
    }
}

void JsonRecorder::open_section(const char *key)
{
    enter_section(key);
    last_flags_ = nullptr;
    json_.open_object(key);
}

void JsonRecorder::open_element(const char *key)
{
    enter_element(key);
    last_flags_ = nullptr;
    json_.open_element(key);
}

void JsonRecorder::close()
{
    leave();
    last_flags_ = nullptr;
    json_.close_object();
}

/// A number in JSON. What reads JSON keeps no more than 53 bits of one, so that a longer one is a text.
class JsonNumber
{
public:
    JsonNumber(std::uint64_t number, bool is_signed, bool is_wide)
    {
        char *at = text_.data();
        char *const end = at + text_.size() - 1;
        if (is_wide) {
            *at++ = '"';
        }
        at = is_signed ? std::to_chars(at, end, static_cast<std::int64_t>(number)).ptr
                       : std::to_chars(at, end, number).ptr;
        if (is_wide) {
            *at++ = '"';
        }
        size_ = static_cast<std::size_t>(at - text_.data());
    }

    [[nodiscard]] std::string_view json() const { return {text_.data(), size_}; }

private:
    std::array<char, 24> text_;
    std::size_t size_;
};

/// A member that goes with another one.
void JsonRecorder::companion(std::string_view key, std::string_view suffix, std::string_view json)
{
    companion_ = key;
    companion_ += suffix;
    json_.json_member(companion_, json);
}

void JsonRecorder::number(std::string_view key, const Value &value)
{
    const bool is_signed = value.kind == Value::signed_number;
    // Printed with "%d": the low 32 bits, with their sign.
    const std::uint64_t number = is_signed && !value.is_wide
                                     ? static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(value.number)})
                                     : value.number;
    json_.json_member(key, JsonNumber(number, is_signed, value.is_wide).json());
    if (value.kind == Value::hex_number) {
        hex_ = value.label.ends_with("0x") ? "\"0x" : "\"";
        hex_ += trimmed(value.printed);
        hex_ += '"';
        companion(key, "_hex", hex_);
    }
}

void JsonRecorder::value(const Value &value)
{
    if (failures_.is_open()) {
        failures_.take(value);
        return;
    }
    if (value.source.is_said) {
        return;
    }
    const std::string_view key = key_of(value);
    switch (value.kind) {
    case Value::truth: json_.member(key, value.number != 0); return;
    case Value::text: json_.member(key, trimmed(value.printed)); break;
    default: number(key, value); break;
    }
    if (value.source.is_made && value.source.has_number && !value.source.is_part) {
        const bool is_wide = value.source.width == sizeof(std::uint64_t);
        companion(key, "_raw", JsonNumber(value.source.number, false, is_wide).json());
    }
}

void JsonRecorder::open_flags(std::span<const Source> words)
{
    flag_words_.assign(words.begin(), words.end());
    flag_names_.clear();
    unnamed_.reset();
}

void JsonRecorder::flag(std::string_view name)
{
    flag_names_.emplace_back(trimmed(name));
}

void JsonRecorder::unnamed_flags(std::uint32_t bits)
{
    unnamed_ = bits;
}

void JsonRecorder::close_flags()
{
    if (flag_words_.front().field == last_flags_) {
        return; // some of the same flags, once more
    }
    last_flags_ = flag_words_.front().field;
    json_.open_array(name_of(flag_words_.front()));
    for (const std::string &name : flag_names_) {
        json_.element(std::string_view(name));
    }
    json_.close_array();
    for (const Source &word : flag_words_) {
        const auto offset = map().offset_of(word.field);
        std::string hex = "\"0x";
        for (std::size_t i = 0; offset && i < word.width; ++i) {
            constexpr std::string_view digits = "0123456789abcdef";
            const std::uint8_t byte = received_[*offset + i];
            hex += digits[byte >> 4U];
            hex += digits[byte & 0xfU];
        }
        companion(name_of(word), "_raw", hex + '"');
    }
    if (!unnamed_) {
        return;
    }
    companion_ = name_of(flag_words_.front());
    companion_ += "_unnamed";
    json_.open_array(companion_);
    for (std::uint32_t bits = *unnamed_; bits != 0; bits &= bits - 1) {
        json_.element(static_cast<std::uint64_t>(__builtin_ctz(bits)));
    }
    json_.close_array();
}

} // namespace recording
