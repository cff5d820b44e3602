#include "client/page/bytes.h"

#include "client/byte_table.h"
#include "client/page/values.h"

#include <algorithm>
#include <array>

namespace l2fib
{

using recording::ByteRun;
using Bytes = std::span<const std::uint8_t>;

std::string hex_number(std::size_t number)
{
    std::array<char, 2 * sizeof number + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%zx", number);
    return digits.data();
}

std::string hex_pairs(Bytes bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += text.empty() ? "" : " ";
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text;
}

static bool is_zero(Bytes bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

class ByteRows
{
public:
    ByteRows(HtmlWriter &out, Bytes received, const Links &links) : out_(out), received_(received), links_(links) {}

    void add(const ByteRun &run);
    void end();

private:
    void add_line(const ByteRun &run, std::size_t offset, std::size_t size);
    void write_record(const ByteRun &run);
    void write_zeros();
    void write_field(const ByteRun &run);
    [[nodiscard]] bool is_linked(const ByteRun &run) const
    {
        return !links_.values_of(run).empty() || links_.level_of(run);
    }
    [[nodiscard]] Bytes at(std::size_t offset, std::size_t size) const { return received_.subspan(offset, size); }

    HtmlWriter &out_;
    Bytes received_;
    const Links &links_;
    std::string_view record_;
    std::size_t record_offset_ = 0;
    std::size_t zeros_ = 0; ///< not written yet
    std::size_t zeros_offset_ = 0;
    std::size_t rows_ = 0;
};

/// A run has lines of some bytes each. Lines of zeros go together, also those of several runs.
void ByteRows::add(const ByteRun &run)
{
    constexpr std::size_t bytes_in_line = 16;
    write_record(run);
    for (std::size_t done = 0; done < run.size; done += bytes_in_line) {
        const std::size_t size = std::min(bytes_in_line, run.size - done);
        const bool is_anchor = done == 0 && is_linked(run);
        if (!is_anchor && is_zero(at(run.offset + done, size))) {
            zeros_offset_ = zeros_ == 0 ? run.offset + done : zeros_offset_;
            zeros_ += size;
        } else {
            write_zeros();
            add_line(run, run.offset + done, size);
        }
    }
}

void ByteRows::add_line(const ByteRun &run, std::size_t offset, std::size_t size)
{
    if (++rows_ > most_rows) {
        return;
    }
    const bool is_anchor = offset == run.offset && is_linked(run);
    std::string_view mark = class_of(links_.level_of(run));
    if (mark.empty() && run.values.empty()) {
        mark = "u";
    }
    const HtmlElement row(out_, "tr",
                          {{"id", is_anchor ? links_.bytes_id(run.offset) : std::string()}, {"class", mark}});
    out_.element("th", hex_number(offset));
    out_.element("td", hex_pairs(at(offset, size)));
    const HtmlElement cell(out_, "td");
    if (offset == run.offset) {
        write_field(run);
    }
}

/// The field leads to its value, and to others of the same bytes by their number.
void ByteRows::write_field(const ByteRun &run)
{
    constexpr std::size_t most_links = 9;
    const auto values = links_.values_of(run);
    const std::string field = run.field.empty() ? "bytes" : run.field;
    if (values.empty()) {
        return out_.text(field);
    }
    for (std::size_t i = 0; i < std::min(values.size(), most_links); ++i) {
        out_.element("a", i == 0 ? field : std::to_string(i + 1), {{"href", '#' + links_.value_id(values[i].value)}});
    }
}

/// A row of its own for each record.
void ByteRows::write_record(const ByteRun &run)
{
    if (run.record == record_ && run.record_offset == record_offset_) {
        return;
    }
    write_zeros();
    record_ = run.record;
    record_offset_ = run.record_offset;
    if (++rows_ <= most_rows) {
        const HtmlElement row(out_, "tr");
        out_.element("th", run.record.empty() ? "no known record" : run.record, {{"colspan", "3"}, {"class", "g"}});
    }
}

void ByteRows::write_zeros()
{
    if (zeros_ != 0 && ++rows_ <= most_rows) {
        const HtmlElement row(out_, "tr", {{"class", "z"}});
        out_.element("th", hex_number(zeros_offset_));
        out_.element("td", std::to_string(zeros_) + (zeros_ == 1 ? " zero" : " zeros"), {{"colspan", "2"}});
    }
    zeros_ = 0;
}

void ByteRows::end()
{
    write_zeros();
    if (rows_ > most_rows) {
        const HtmlElement row(out_, "tr");
        out_.element("td", std::to_string(rows_ - most_rows) + " more rows: l2fib-show replay --bytes",
                     {{"colspan", "3"}});
    }
}

void write_bytes(HtmlWriter &out, recording::BytesRecorder &bytes, Bytes received, const Links &links)
{
    NotShown not_shown;
    bytes.for_each_run([&](const ByteRun &run) { not_shown.add(run, received.subspan(run.offset, run.size)); });
    out.element("p", "No line shows " + std::to_string(not_shown.count) + " of " + std::to_string(received.size()) +
                         " bytes; " + std::to_string(not_shown.nonzero) + " of them are not zero.");
    const HtmlElement table(out, "table", {{"class", "b"}});
    ByteRows rows(out, received, links);
    bytes.for_each_run([&rows](const ByteRun &run) { rows.add(run); });
    rows.end();
}

} // namespace l2fib
