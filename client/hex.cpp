#include "client/hex.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>

namespace l2fib
{

/// Numbers side by side, as the processor takes them.
template <class Number, std::size_t size>
struct Vector {
    using Type [[gnu::vector_size(size)]] = Number;
};

/// Decodes hex digits, `width` at a time, with nothing left over. False where one is none.
template <std::size_t width>
[[gnu::always_inline]] static inline bool decode(std::uint8_t *at, std::string_view digits)
{
    using Characters = typename Vector<std::uint8_t, width>::Type;
    using Signed = typename Vector<std::int8_t, width>::Type;
    using Pairs = typename Vector<std::uint16_t, width>::Type;
    using Bytes = typename Vector<std::uint8_t, width / 2>::Type;

    constexpr int lowest = -128;
    Characters all_hex = ~Characters{};
    for (; !digits.empty(); digits.remove_prefix(width), at += width / 2) {
        Characters text;
        std::memcpy(&text, digits.data(), width);

        // All ones where it is one: the digits, and the letters, are moved to where the signed numbers begin, which are
        // compared at once.
        const Characters lower = text | std::uint8_t{'a' - 'A'};
        const auto from_0 = reinterpret_cast<Signed>(text + static_cast<std::uint8_t>(lowest - '0'));
        const auto from_a = reinterpret_cast<Signed>(lower + static_cast<std::uint8_t>(lowest - 'a'));
        const auto is_digit = reinterpret_cast<Characters>(from_0 < std::int8_t{lowest + 10});
        const auto is_letter = reinterpret_cast<Characters>(from_a < std::int8_t{lowest + 6});
        all_hex &= is_digit | is_letter;

        const auto values = reinterpret_cast<Pairs>((text & std::uint8_t{0xf}) + (is_letter & std::uint8_t{9}));
        const Pairs joined = (values << 4 | values >> 8) & std::uint16_t{0xff};
        const auto bytes = __builtin_convertvector(joined, Bytes);
        std::memcpy(at, &bytes, sizeof bytes);
    }
    const auto each = std::bit_cast<std::array<std::uint8_t, width>>(all_hex);
    return std::all_of(each.begin(), each.end(), [](std::uint8_t is_hex) { return is_hex != 0; });
}

constexpr std::size_t decoded_at_once = 32;

#ifdef __x86_64__
/// On processors with registers for as many.
[[gnu::target("avx2")]] static bool decode_wide(std::uint8_t *at, std::string_view digits)
{
    return decode<decoded_at_once>(at, digits);
}

static bool decode_digits(std::uint8_t *at, std::string_view digits)
{
    return __builtin_cpu_supports("avx2") != 0 ? decode_wide(at, digits) : decode<decoded_at_once / 2>(at, digits);
}
#else
static bool decode_digits(std::uint8_t *at, std::string_view digits)
{
    return decode<decoded_at_once / 2>(at, digits);
}
#endif

bool append_hex(std::vector<std::uint8_t> &bytes, std::string_view digits)
{
    if (digits.size() % 2 != 0) {
        return false;
    }
    const std::size_t first = bytes.size();
    bytes.resize(first + digits.size() / 2);
    std::uint8_t *at = bytes.data() + first;
    const std::size_t most = digits.size() / decoded_at_once * decoded_at_once;
    if (!decode_digits(at, digits.substr(0, most))) {
        return false;
    }
    std::array<char, decoded_at_once> rest{};
    rest.fill('0');
    digits.substr(most).copy(rest.data(), rest.size());
    std::array<std::uint8_t, decoded_at_once / 2> last{};
    const bool is_hex = decode_digits(last.data(), {rest.data(), rest.size()});
    std::copy_n(last.begin(), (digits.size() - most) / 2, at + most / 2);
    return is_hex;
}

std::optional<std::vector<std::uint8_t>> bytes_of_hex(std::string_view digits)
{
    std::vector<std::uint8_t> bytes;
    return append_hex(bytes, digits) ? std::optional(std::move(bytes)) : std::nullopt;
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
        if (!append_hex(bytes_, word)) {
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
