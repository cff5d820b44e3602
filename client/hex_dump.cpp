#include "client/hex_dump.h"

#include "client/hex_digits.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace l2fib
{

constexpr std::string_view blanks = " \t\r";

/// A line, taken word by word from the left.
class WordCursor
{
public:
    explicit WordCursor(std::string_view line)
        : line_(line.substr(0, line.find_last_not_of(blanks) + 1)) // mail programs cut and add blanks there
    {
    }

    /// Returns how many there were.
    std::size_t skip_blanks()
    {
        const std::size_t begin = at_;
        at_ = std::min(line_.find_first_not_of(blanks, at_), line_.size());
        return at_ - begin;
    }

    /// What is left, up to the next blank.
    [[nodiscard]] std::string_view word() const { return rest().substr(0, rest().find_first_of(blanks)); }
    [[nodiscard]] std::string_view rest() const { return line_.substr(at_); }
    [[nodiscard]] bool is_at_end() const { return at_ == line_.size(); }

    void skip(std::size_t size) { at_ += size; }
    std::string_view next_word()
    {
        skip_blanks();
        const std::string_view taken = word();
        skip(taken.size());
        return taken;
    }

    [[nodiscard]] std::size_t column() const { return at_ + 1; }

private:
    std::string_view line_;
    std::size_t at_ = 0;
};

/// The number of an offset; none for another text.
static std::optional<std::size_t> hex_number(std::string_view text)
{
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// Reads a dump line by line.
class DumpReader
{
public:
    DumpReader(HexForm form, std::size_t longest) : form_(form), longest_(longest) {}

    /// False, with an error, for a line that is not of the form.
    bool read_line(std::string_view text, std::string_view next);

    /// The same for a dump that ends too early.
    bool finish()
    {
        return !repeated_at_ || fail(*repeated_at_, 1, "no offset after it says how often the line is repeated");
    }

    HexBytes take_result() { return std::move(result_); }

private:
    static HexForm form_of(std::string_view line, std::string_view next);
    static bool is_numbered(std::string_view line, std::string_view next);
    bool read_plain(WordCursor line);
    bool read_dump_line(WordCursor line);
    bool read_offset(std::string_view offset, std::size_t column);
    bool read_bytes(WordCursor line);
    bool add_bytes(std::string_view digits, std::size_t column, const char *otherwise);
    [[nodiscard]] bool are_characters(std::string_view text, std::size_t blanks_before) const;

    [[nodiscard]] std::size_t bytes_of_line() const { return result_.bytes.size() - line_begin_; }

    bool fail(std::size_t line, std::size_t column, const char *why)
    {
        result_ = {{}, "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + why};
        return false;
    }
    bool fail(std::size_t column, const char *why) { return fail(line_, column, why); }

    HexForm form_;
    std::size_t longest_;
    HexBytes result_;
    std::size_t line_ = 0;                   // its number
    std::size_t line_begin_ = 0;             // of the last line of bytes
    std::optional<std::size_t> repeated_at_; // where a "*" is in place of more lines like it
};

/// Whether two lines begin with offsets, of which the second is some bytes after the first. Where the words after them
/// are as long, they are bytes all the same, unless od has that size for its offsets and for words of octal digits.
bool DumpReader::is_numbered(std::string_view line, std::string_view next)
{
    constexpr std::size_t od_offset_size = 6;
    constexpr std::size_t most_bytes = 32;
    WordCursor words(line);
    const std::string_view first = words.next_word();
    const std::string_view second = WordCursor(next).next_word();
    const std::size_t word_size = words.next_word().size();
    if (first.size() < od_offset_size || second.size() != first.size() ||
        (word_size == first.size() && word_size != od_offset_size)) {
        return false;
    }
    const auto begin = hex_number(first);
    const auto end = hex_number(second);
    return begin && end && *begin < *end && *end - *begin <= most_bytes;
}

/// By the offset: an xxd's has a colon. One without is told from bytes by the words after it, by the offset of the next
/// line, or by the bars around the characters.
HexForm DumpReader::form_of(std::string_view line, std::string_view next)
{
    WordCursor words(line);
    const std::string_view first = words.next_word();
    if (first.find(':') != std::string_view::npos) {
        return HexForm::xxd;
    }
    constexpr std::size_t shortest_offset = 6;
    constexpr std::size_t word_sizes[] = {2, 4, 8, 16};
    const std::size_t second_size = words.next_word().size();
    const bool is_offset = first.size() >= shortest_offset && first.find_first_not_of('0') == std::string_view::npos;
    const bool is_word = std::find(std::begin(word_sizes), std::end(word_sizes), second_size) != std::end(word_sizes);
    if ((is_offset && is_word && second_size != first.size()) || is_numbered(line, next)) {
        return HexForm::hexdump;
    }
    const std::size_t last = line.find_last_not_of(blanks);
    return line.find('|') != last && line[last] == '|' ? HexForm::hexdump : HexForm::plain;
}

bool DumpReader::add_bytes(std::string_view digits, std::size_t column, const char *otherwise)
{
    if (result_.bytes.size() + digits.size() / 2 > longest_) {
        return fail(column, "more bytes than any show data has");
    }
    return (!digits.empty() && append_hex(result_.bytes, digits)) || fail(column, otherwise);
}

bool DumpReader::read_plain(WordCursor line)
{
    for (line.skip_blanks(); !line.is_at_end(); line.skip_blanks()) {
        const std::size_t column = line.column();
        std::string_view digits = line.next_word();
        if (digits.starts_with("0x") || digits.starts_with("0X")) {
            digits.remove_prefix(2);
        }
        if (!add_bytes(digits, column, "not pairs of hex digits")) {
            return false;
        }
    }
    return true;
}

/// Where the line lies, which has to be where the bytes before it end.
bool DumpReader::read_offset(std::string_view offset, std::size_t column)
{
    const auto begin = hex_number(offset);
    if (!begin) {
        return fail(column, "no offset");
    }
    if (*begin > longest_) {
        return fail(column, "more bytes than any show data has");
    }
    std::vector<std::uint8_t> &bytes = result_.bytes;
    const std::size_t line_size = bytes_of_line();
    while (repeated_at_ && line_size != 0 && bytes.size() < *begin) {
        for (std::size_t i = 0; i < line_size; ++i) {
            bytes.push_back(bytes[line_begin_ + i]);
        }
    }
    repeated_at_.reset();
    line_begin_ = bytes.size();
    return *begin == bytes.size() || fail(column, "not the offset at which the bytes before it end");
}

/// Whether a text has a character for each byte of the line. Where xxd's begin does not show when they are blanks.
bool DumpReader::are_characters(std::string_view text, std::size_t blanks_before) const
{
    std::string characters;
    for (std::size_t at = line_begin_; at < result_.bytes.size(); ++at) {
        const char c = static_cast<char>(result_.bytes[at]);
        characters += c >= ' ' && c <= '~' ? c : '.';
    }
    if (form_ == HexForm::hexdump) {
        return text == "|" + characters + "|" || text == ">" + characters + "<";
    }
    const std::size_t first = std::min(characters.find_first_not_of(' '), characters.size());
    const std::size_t end = characters.find_last_not_of(' ') + 1; // trailing blanks get lost
    return blanks_before >= 2 + first && text == std::string_view(characters).substr(first, end - first);
}

/// Groups of bytes, a blank between them, and then their characters. In the middle, hexdump leaves two blanks.
bool DumpReader::read_bytes(WordCursor line)
{
    constexpr std::size_t half_a_line = 8;
    constexpr const char *neither = "neither pairs of hex digits nor the characters of the bytes before";
    for (std::size_t gap = line.skip_blanks(); !line.is_at_end(); gap = line.skip_blanks()) {
        const std::size_t count = bytes_of_line();
        const bool has_bars = line.rest().front() == '|' || line.rest().front() == '>';
        if (count != 0 && (gap >= 2 || has_bars)) {
            if (are_characters(line.rest(), gap)) {
                return true;
            }
            if (count != half_a_line) {
                return fail(line.column(), neither);
            }
        }
        const std::string_view group = line.word();
        if (form_ == HexForm::hexdump && group.size() > 2 && !has_bars) {
            return fail(line.column(), "words in an unknown byte order; use xxd or hexdump -C");
        }
        if (!add_bytes(group, line.column(), neither)) {
            return false;
        }
        line.skip(group.size());
    }
    return true;
}

bool DumpReader::read_dump_line(WordCursor line)
{
    if (line.rest() == "*") {
        repeated_at_ = line_;
        return true;
    }
    const std::size_t column = line.column();
    if (form_ == HexForm::xxd) {
        const std::size_t colon = line.word().find(':');
        if (colon == std::string_view::npos) {
            return fail(column, "no offset");
        }
        const std::string_view offset = line.word().substr(0, colon);
        line.skip(colon + 1);
        return read_offset(offset, column) && read_bytes(line);
    }
    const std::string_view offset = line.next_word();
    constexpr std::size_t od_offset_size = 7;
    if (offset.size() == od_offset_size && WordCursor(line).next_word().size() <= 2) {
        return fail(column, "offset in octal or decimal; use od -A x, xxd or hexdump -C");
    }
    return read_offset(offset, column) && read_bytes(line);
}

bool DumpReader::read_line(std::string_view text, std::string_view next)
{
    ++line_;
    WordCursor line(text);
    line.skip_blanks();
    if (line.is_at_end()) {
        return true;
    }
    if (form_ == HexForm::any) {
        form_ = form_of(text, next);
    }
    return form_ == HexForm::plain ? read_plain(line) : read_dump_line(line);
}

HexBytes read_hex_dump(std::string_view text, HexForm form, std::size_t longest)
{
    DumpReader reader{form, longest};
    bool is_read = true;
    while (is_read && !text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        is_read = reader.read_line(line, text.substr(0, text.find('\n')));
    }
    if (is_read) {
        reader.finish();
    }
    return reader.take_result();
}

} // namespace l2fib
