#include "recording/json_writer.h"

#include <array>
#include <charconv>

namespace recording
{

void JsonWriter::flush()
{
    std::fwrite(buffer_.data(), 1, buffer_.size(), stream_); // what does not arrive is the stream's to tell its owner
    buffer_.clear();
}

void JsonWriter::open_line()
{
    depth_ = 0;
    buffer_ += '{';
    scopes_.resize(1);
    scopes_[0] = {};
}

void JsonWriter::close_line()
{
    constexpr std::size_t enough = std::size_t{1} << 16U;
    end_elements();
    buffer_ += "}\n";
    if (buffer_.size() >= enough) {
        flush();
    }
}

void JsonWriter::separate()
{
    if (scopes_[depth_].has_members) {
        buffer_ += ',';
    }
    scopes_[depth_].has_members = true;
}

void JsonWriter::end_elements()
{
    std::string &array = scopes_[depth_].array;
    if (!array.empty()) {
        buffer_ += ']';
        array.clear();
    }
}

void JsonWriter::key(std::string_view key)
{
    end_elements();
    separate();
    buffer_ += '"';
    buffer_ += key;
    buffer_ += "\":";
}

void JsonWriter::open_object(std::string_view name)
{
    if (name.empty()) {
        separate();
    } else {
        key(name);
    }
    buffer_ += '{';
    if (++depth_ == scopes_.size()) {
        scopes_.emplace_back();
    }
    scopes_[depth_].has_members = false;
}

void JsonWriter::open_element(std::string_view name)
{
    constexpr std::size_t enough = std::size_t{1} << 16U;
    if (buffer_.size() >= enough) {
        flush();
    }
    if (scopes_[depth_].array == name) {
        buffer_ += ',';
    } else {
        key(name);
        buffer_ += '[';
        scopes_[depth_].array = name;
    }
    buffer_ += '{';
    if (++depth_ == scopes_.size()) {
        scopes_.emplace_back();
    }
    scopes_[depth_].has_members = false;
}

void JsonWriter::close_object()
{
    end_elements();
    --depth_;
    buffer_ += '}';
}

void JsonWriter::open_array(std::string_view name)
{
    key(name);
    buffer_ += '[';
    if (++depth_ == scopes_.size()) {
        scopes_.emplace_back();
    }
    scopes_[depth_].has_members = false;
}

void JsonWriter::close_array()
{
    --depth_;
    buffer_ += ']';
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
    buffer_ += truth ? "true" : "false";
}

void JsonWriter::json_member(std::string_view name, std::string_view json)
{
    key(name);
    buffer_ += json;
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
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    buffer_.append(digits.data(), end);
}

/// Bytes that are no ASCII become the characters of the same number, so that they can be told again.
void JsonWriter::put_text(std::string_view text)
{
    constexpr std::string_view hex = "0123456789abcdef";
    buffer_ += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7f && c != '"' && c != '\\') {
            buffer_ += c;
        } else if (c == '"' || c == '\\') {
            buffer_ += '\\';
            buffer_ += c;
        } else {
            buffer_ += "\\u00";
            buffer_ += hex[byte >> 4U];
            buffer_ += hex[byte & 0xfU];
        }
    }
    buffer_ += '"';
}

} // namespace recording
