#include "client/byte_table.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t bytes_in_line = 8;
constexpr std::size_t field_width = 28;
constexpr std::size_t text_width = 48; // what is left of 120 columns

void NotShown::add(const recording::ByteRun &run, Bytes bytes)
{
    if (run.values.empty()) {
        count += bytes.size();
        nonzero += bytes.size() - static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), 0));
    }
}

static bool is_zero(Bytes bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

static std::string in_pairs(Bytes bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes) {
        std::array<char, sizeof " ff"> pair{};
        std::snprintf(pair.data(), pair.size(), text.empty() ? "%02x" : " %02x", byte);
        text += pair.data();
    }
    return text;
}

/// Text of the show data, fit for a terminal.
static std::string in_plain_ascii(std::string_view text)
{
    std::string plain;
    for (const char c : text) {
        if (c >= ' ' && c <= '~') {
            plain += c;
        } else {
            std::array<char, sizeof "\\xff"> code{};
            std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned char>(c));
            plain += code.data();
        }
    }
    return plain;
}

/// A part of a row that has several lines.
struct Line {
    std::size_t offset;
    std::string bytes;
};

/// The bytes of a run, some on each line. Of many bytes, lines of zeros are left out, and of very many, the last ones.
static std::vector<Line> lines_of(std::size_t offset, Bytes bytes)
{
    constexpr std::size_t most_lines = 8;
    std::vector<Line> lines;
    bool is_cut = false;
    for (std::size_t at = 0; at < bytes.size() && !is_cut; at += bytes_in_line) {
        const Bytes part = bytes.subspan(at, std::min(bytes_in_line, bytes.size() - at));
        if (at == 0 || !is_zero(part)) {
            is_cut = lines.size() == most_lines;
            lines.push_back({offset + at, is_cut ? ".." : in_pairs(part)});
        }
    }
    if (lines.size() == 1 && bytes.size() > bytes_in_line) {
        lines.front().bytes.replace(lines.front().bytes.size() - 2, 2, "..");
    }
    return lines;
}

/// Adds a value in lines that are broken at blanks of its text, where there are some.
static void add_wrapped(std::vector<std::string> &lines, const recording::ShownValue &value)
{
    constexpr const char *indent = "  ";
    std::string rest = value.path + ": ";
    std::size_t unbroken = rest.size();
    rest += in_plain_ascii(value.text);
    while (rest.size() > text_width) {
        std::size_t blank = rest.rfind(' ', text_width);
        if (blank == std::string::npos || blank < unbroken) {
            blank = rest.find(' ', std::max(unbroken, text_width));
        }
        if (blank == std::string::npos) {
            break;
        }
        lines.push_back(rest.substr(0, blank));
        rest.replace(0, blank + 1, indent);
        unbroken = 2;
    }
    lines.push_back(std::move(rest));
}

class ByteTable
{
public:
    ByteTable(Bytes bytes, bool colored) : bytes_(bytes), colored_(colored)
    {
        std::printf("%-8s  %5s  %-23s  %-*s  %s\n", "offset", "width", "bytes", static_cast<int>(field_width), "field",
                    "text");
    }

    void add(const recording::ByteRun &run);
    void end();

private:
    enum Style : std::uint8_t { plain, faint, alarming };

    void print_record(const recording::ByteRun &run);
    void print_row(std::size_t offset, std::size_t size, std::string field, std::vector<std::string> texts,
                   Style style);
    void print_line(const std::string &line, Style style) const;
    bool continues_zeros(const recording::ByteRun &run) const;
    void print_zeros();

    Bytes bytes_;
    bool colored_;
    std::string_view record_;
    std::size_t record_offset_ = 0;
    NotShown not_shown_;
    std::optional<recording::ByteRun> zeros_; ///< not printed yet: more of the same array may come
    std::string last_zero_field_;
};

/// The array that a field is in, or nothing.
static std::string_view array_of(std::string_view field)
{
    const std::size_t bracket = field.find('[');
    return bracket == std::string_view::npos ? std::string_view{} : field.substr(0, bracket);
}

bool ByteTable::continues_zeros(const recording::ByteRun &run) const
{
    return zeros_ && zeros_->record == run.record && zeros_->record_offset == run.record_offset &&
           !array_of(run.field).empty() && array_of(run.field) == array_of(zeros_->field);
}

void ByteTable::add(const recording::ByteRun &run)
{
    const Bytes bytes = bytes_.subspan(run.offset, run.size);
    not_shown_.add(run, bytes);
    if (run.values.empty() && is_zero(bytes)) {
        if (continues_zeros(run)) {
            zeros_->size += run.size;
        } else {
            print_zeros();
            zeros_ = run;
        }
        last_zero_field_ = run.field;
        return;
    }
    print_zeros();
    print_record(run);
    std::vector<std::string> texts;
    for (const recording::ShownValue &value : run.values) {
        add_wrapped(texts, value);
    }
    if (texts.empty()) {
        texts.emplace_back("! no line shows this");
    }
    print_row(run.offset, run.size, run.field, std::move(texts), run.values.empty() ? alarming : plain);
}

void ByteTable::print_zeros()
{
    if (zeros_) {
        print_record(*zeros_);
        std::string field = zeros_->field;
        if (field != last_zero_field_) {
            field += " to " + last_zero_field_.substr(array_of(last_zero_field_).size());
        }
        print_row(zeros_->offset, zeros_->size, std::move(field), {}, faint);
        zeros_.reset();
    }
}

/// A line of its own for each record.
void ByteTable::print_record(const recording::ByteRun &run)
{
    if (run.record.empty() || (run.record == record_ && run.record_offset == record_offset_)) {
        return;
    }
    record_ = run.record;
    record_offset_ = run.record_offset;
    std::printf("0x%06zx  %5zu  %-23s  %.*s\n", run.record_offset, run.record_size, "",
                static_cast<int>(record_.size()), record_.data());
}

void ByteTable::print_row(std::size_t offset, std::size_t size, std::string field, std::vector<std::string> texts,
                          Style style)
{
    field.insert(0, field.empty() ? "-" : "  ");
    if (field.size() > field_width && !texts.empty()) {
        texts.insert(texts.begin(), ""); // below it
    }
    const std::vector<Line> lines = lines_of(offset, bytes_.subspan(offset, size));
    for (std::size_t i = 0; i < std::max(lines.size(), texts.size()); ++i) {
        std::array<char, 64> left{};
        if (i == 0) {
            std::snprintf(left.data(), left.size(), "0x%06zx  %5zu  %-23s  ", offset, size,
                          lines.empty() ? "" : lines.front().bytes.c_str());
        } else if (i < lines.size()) {
            std::snprintf(left.data(), left.size(), "0x%06zx  %5s  %-23s  ", lines[i].offset, "",
                          lines[i].bytes.c_str());
        } else {
            std::snprintf(left.data(), left.size(), "%*s", 42, "");
        }
        std::string line = left.data();
        std::string middle = i == 0 ? field : "";
        middle.resize(std::max(field_width, middle.size()), ' ');
        line += middle;
        line += "  ";
        line += i < texts.size() ? texts[i] : "";
        print_line(line.substr(0, line.find_last_not_of(' ') + 1), style);
    }
}

void ByteTable::print_line(const std::string &line, Style style) const
{
    const char *const begin = !colored_ || style == plain ? "" : style == faint ? "\x1b[2m" : "\x1b[33m";
    std::printf("%s%s%s\n", begin, line.c_str(), *begin == '\0' ? "" : "\x1b[0m");
}

void ByteTable::end()
{
    print_zeros();
    std::printf("No line shows %zu of %zu bytes; %zu of them are not zero.\n", not_shown_.count, bytes_.size(),
                not_shown_.nonzero);
}

void print_byte_table(recording::BytesRecorder &view, Bytes bytes, bool colored)
{
    ByteTable table(bytes, colored);
    view.for_each_run([&table](const recording::ByteRun &run) { table.add(run); });
    table.end();
    for (const std::string &failure : view.failures()) {
        constexpr const char *around = " \n";
        const std::size_t begin = std::min(failure.find_first_not_of(around), failure.size());
        const std::size_t end = failure.find_last_not_of(around) + 1;
        std::printf("%s\n", in_plain_ascii(std::string_view(failure).substr(begin, end - begin)).c_str());
    }
}

} // namespace l2fib
