#include "recording/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace recording
{

void JsonWriter::flush()
{
    std::fwrite(buffer_.get(), 1, size_, stream_); // what does not arrive is the stream's to tell its owner
    size_ = 0;
}

inline void JsonWriter::put(char c)
{
    if (size_ == buffer_size) {
        flush();
    }
    buffer_[size_++] = c;
}

inline void JsonWriter::put(std::string_view json)
{
    if (json.size() > buffer_size - size_) {
        flush();
    }
    if (json.size() > buffer_size) {
        std::fwrite(json.data(), 1, json.size(), stream_);
        return;
    }
    std::memcpy(&buffer_[size_], json.data(), json.size());
    size_ += json.size();
}

void JsonWriter::open_line()
{
    depth_ = 0;
    scopes_.resize(1);
    scopes_[0] = {};
    put('{');
}

void JsonWriter::close_line()
{
    end_elements();
    put("}\n");
}

inline void JsonWriter::separate()
{
    if (scopes_[depth_].has_members) {
        put(',');
    }
    scopes_[depth_].has_members = true;
}

inline void JsonWriter::end_elements()
{
    if (scopes_[depth_].has_elements) {
        put(']');
        scopes_[depth_].has_elements = false;
    }
}

inline void JsonWriter::key(std::string_view key)
{
    end_elements();
    separate();
    put('"');
    put(key);
    put("\":");
}

/// Makes a new scope the current one.
void JsonWriter::enter()
{
    if (++depth_ == scopes_.size()) {
        scopes_.emplace_back();
    }
    scopes_[depth_].has_members = false;
    scopes_[depth_].has_elements = false;
}

void JsonWriter::open_object(std::string_view name)
{
    key(name);
    put('{');
    enter();
}

void JsonWriter::open_element(std::string_view name)
{
    Scope &scope = scopes_[depth_];
    if (scope.has_elements && scope.array == name) {
        put(',');
    } else {
        key(name);
        put('[');
        scope.has_elements = true;
        scope.array = name;
    }
    put('{');
    enter();
}

void JsonWriter::close_object()
{
    end_elements();
    --depth_;
    put('}');
}

void JsonWriter::open_array(std::string_view name)
{
    key(name);
    put('[');
    enter();
}

void JsonWriter::close_array()
{
    --depth_;
    put(']');
}

void JsonWriter::member(std::string_view name, std::string_view text)
{
    key(name);
    put_text(text);
}

void JsonWriter::member(std::string_view name, std::uint64_t number)
{
    key(name);
    put_number(number);
}

void JsonWriter::member(std::string_view name, bool truth)
{
    key(name);
    put(truth ? std::string_view("true") : std::string_view("false"));
}

void JsonWriter::json_member(std::string_view name, std::string_view json)
{
    key(name);
    put(json);
}

void JsonWriter::element(std::string_view text)
{
    separate();
    put_text(text);
}

void JsonWriter::element(std::uint64_t number)
{
    separate();
    put_number(number);
}

void JsonWriter::put_number(std::uint64_t number)
{
    std::array<char, 20> digits{};
    const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    put({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

static bool is_plain(char c)
{
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

/// Bytes that are no ASCII become the characters of the same number, so that they can be told again.
void JsonWriter::put_text(std::string_view text)
{
    constexpr std::string_view hex = "0123456789abcdef";
    put('"');
    while (!text.empty()) {
        const auto odd = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), is_plain) - text.begin());
        put(text.substr(0, odd));
        if (odd == text.size()) {
            break;
        }
        const auto byte = static_cast<unsigned char>(text[odd]);
        const char escaped[] = {'\\', 'u', '0', '0', hex[byte >> 4U], hex[byte & 0xfU]};
        put({escaped, sizeof escaped});
        text.remove_prefix(odd + 1);
    }
    put('"');
}

} // namespace recording
