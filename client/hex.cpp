#include "client/hex.h"

#include <charconv>
#include <cstring>

namespace l2fib
{

/// The same byte eight times.
static constexpr std::uint64_t eight(std::uint8_t byte)
{
    return byte * std::uint64_t{0x0101010101010101};
}

/// Four bytes of eight hex digits, and in `others` a bit for each character that is none.
static std::uint32_t four_bytes(const char *digits, std::uint64_t &others)
{
    std::uint64_t text = 0;
    std::memcpy(&text, digits, sizeof text);

    // Within a byte, a sum that reaches 0x80 says that a number is not below the bound that was taken from 0x80.
    const std::uint64_t as_digit = text ^ eight('0');
    const std::uint64_t as_letter = (text | eight(0x20)) ^ eight(0x60); // 1 to 6 for a to f
    const std::uint64_t no_digit = ((as_digit & eight(0x7f)) + eight(0x80 - 10)) | as_digit;
    const std::uint64_t no_letter =
        ~((as_letter & eight(0x7f)) + eight(0x80 - 1)) | ((as_letter & eight(0x7f)) + eight(0x80 - 7)) | as_letter;
    others |= no_digit & no_letter & eight(0x80);

    std::uint64_t values = (text & eight(0x0f)) + 9 * (text >> 6U & eight(0x01));
    values = (values << 4U | values >> 8U) & 0x00ff00ff00ff00ff; // the pairs
    values = (values | values >> 8U) & 0x0000ffff0000ffff;
    return static_cast<std::uint32_t>(values | values >> 16U);
}

/// Appends the bytes of hex digits; false when there is half a byte or no hex.
static bool append_digits(std::vector<std::uint8_t> &bytes, std::string_view digits)
{
    if (digits.size() % 2 != 0) {
        return false;
    }
    std::uint64_t others = 0;
    const std::size_t first = bytes.size();
    bytes.resize(first + digits.size() / 2);
    std::uint8_t *at = bytes.data() + first;
    const char *from = digits.data();
    const std::size_t eights = digits.size() / 8;
    for (std::size_t i = 0; i < eights; ++i) {
        const std::uint32_t four = four_bytes(from + 8 * i, others);
        std::memcpy(at + 4 * i, &four, sizeof four);
    }
    if (digits.size() % 8 != 0) {
        char rest[] = "00000000";
        digits.substr(8 * eights).copy(rest, sizeof rest);
        const std::uint32_t four = four_bytes(rest, others);
        std::memcpy(at + 4 * eights, &four, digits.size() % 8 / 2);
    }
    return others == 0;
}

std::optional<std::vector<std::uint8_t>> bytes_of_hex(std::string_view digits)
{
    std::vector<std::uint8_t> bytes;
    return append_digits(bytes, digits) ? std::optional(std::move(bytes)) : std::nullopt;
}

std::string hex_of_bytes(const std::vector<std::uint8_t> &bytes)
{
    constexpr const char *digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text;
}

constexpr std::string_view blanks = " \t\r";

/// Takes the first word off a text; empty when there is none.
static std::string_view next_word(std::string_view &text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text.remove_prefix(word.size());
    return word;
}

/// Reads a dump line by line.
class HexReader
{
public:
    HexReader(HexForm form, std::size_t longest) : form_(form), longest_(longest) {}

    /// False, with error() saying why, for a line that is not of the form.
    bool read_line(std::string_view line);

    [[nodiscard]] const char *error() const { return error_; }
    std::vector<std::uint8_t> take_bytes() { return std::move(bytes_); }

private:
    static HexForm form_of(std::string_view line);
    bool read_words(std::string_view words);
    bool read_offset(std::string_view word);
    bool fail(const char *why)
    {
        error_ = why;
        return false;
    }

    HexForm form_;
    std::size_t longest_;
    std::vector<std::uint8_t> bytes_;
    std::size_t line_begin_ = 0; // of the last line of bytes
    bool repeated_ = false;      // a "*" stands for more lines like it
    const char *error_ = nullptr;
};

/// By the offset and the characters beside the bytes.
HexForm HexReader::form_of(std::string_view line)
{
    std::string_view rest = line;
    if (next_word(rest).ends_with(':')) {
        return HexForm::xxd;
    }
    const std::size_t last = line.find_last_not_of(blanks);
    return line.find('|') != last && line[last] == '|' ? HexForm::hexdump : HexForm::plain;
}

bool HexReader::read_words(std::string_view words)
{
    for (std::string_view word = next_word(words); !word.empty(); word = next_word(words)) {
        if (word.starts_with("0x") || word.starts_with("0X")) {
            word.remove_prefix(2);
        }
        if (bytes_.size() + word.size() / 2 > longest_) {
            return fail("more bytes than any show data has");
        }
        if (!append_digits(bytes_, word)) {
            return fail("not pairs of hex digits");
        }
    }
    return true;
}

/// Where the line lies, which has to be where the bytes before it end.
bool HexReader::read_offset(std::string_view word)
{
    std::size_t offset = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), offset, 16);
    if (error != std::errc{} || end != word.data() + word.size()) {
        return fail("no offset");
    }
    if (offset > longest_) {
        return fail("more bytes than any show data has");
    }
    const std::size_t line_size = bytes_.size() - line_begin_;
    while (repeated_ && line_size != 0 && bytes_.size() < offset) {
        for (std::size_t i = 0; i < line_size; ++i) {
            bytes_.push_back(bytes_[line_begin_ + i]);
        }
    }
    repeated_ = false;
    line_begin_ = bytes_.size();
    return offset == bytes_.size() || fail("not the offset at which the bytes before it end");
}

bool HexReader::read_line(std::string_view line)
{
    std::string_view rest = line;
    const std::string_view first = next_word(rest);
    if (first.empty()) {
        return true;
    }
    if (form_ == HexForm::any) {
        form_ = form_of(line);
    }
    if (form_ == HexForm::plain) {
        return read_words(line);
    }
    if (first == "*") {
        repeated_ = true;
        return true;
    }
    if (form_ == HexForm::xxd) {
        // The characters stand behind two blanks.
        return read_offset(first.substr(0, first.find(':'))) && read_words(rest.substr(0, rest.find("  ")));
    }
    return read_offset(first) && read_words(rest.substr(0, rest.find('|')));
}

HexBytes read_hex(std::string_view text, HexForm form, std::size_t longest)
{
    HexReader reader{form, longest};
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (!reader.read_line(text.substr(0, end))) {
            return {{}, "line " + std::to_string(line) + ": " + reader.error()};
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {reader.take_bytes(), {}};
}

} // namespace l2fib
