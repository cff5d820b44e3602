#include "common/tlv.h"

#include "common/names.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// The beginning of a record. Its value follows: a big-endian number, or a string with its terminating zero.
struct TlvHeader {
    U8 type;
    U8 length; // of the whole record
    U8 verdict;

    using Fields = l2fib::Fields<&TlvHeader::type, &TlvHeader::length, &TlvHeader::verdict>;
};

enum TlvType : std::uint8_t {
    tlv_number = 1,
    tlv_hex_word = 2,
    tlv_string = 3,
    tlv_end_of_line = 4,
    tlv_end_of_stream = 5,
    tlv_truncated = 6, // the producer ran out of room here
};

constexpr std::uint8_t no_verdict = 1;

static Literal verdict_name(std::uint32_t verdict)
{
    constexpr std::uint32_t ok = 2;
    static constexpr Literal names[] = {"OK", "Warning", "Error"};
    return name_of(names, verdict - ok, "Invalid");
}

/// Prints lines of values, and after each line the last verdict that one of its values carried.
class Report
{
public:
    Report(Output &out, std::uint32_t level) : out_(out), level_(level) {}

    template <class Value>
    [[gnu::always_inline]] void value(std::uint8_t verdict, const Format<std::type_identity_t<Value>> &format,
                                      const Value &value)
    {
        const Element of_value(out_, "values");
        note(out_, "line", line_number_);
        if (verdict != no_verdict) {
            verdict_ = verdict;
            note(out_, "verdict", verdict_name(verdict));
        }
        if (!line_is_open_) {
            column_ = advance(out_.indent(level_));
            line_is_open_ = true;
        }
        column_ += advance(out_.text<Value>(format, value));
    }

    void end_line()
    {
        constexpr std::uint64_t verdict_column = 73;
        if (verdict_ != no_verdict) {
            if (column_ < verdict_column) {
                out_.repeat('.', verdict_column - column_);
            }
            out_.text(" %s", verdict_name(verdict_));
            verdict_ = no_verdict;
        }
        out_.text("\n");
        line_is_open_ = false;
        column_ = 0;
        ++line_number_;
    }

    /// Prints on a line of its own why the report ends here. Returns the status.
    template <class... Args>
    std::uint32_t error(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        if (line_is_open_) {
            out_.text("\n");
        }
        const Failure failure(out_);
        out_.first_line<Args...>(level_, format, args...);
        return L2FIB_SHOW_ERR_DATA;
    }

private:
    static std::uint64_t advance(int printed) { return static_cast<std::uint64_t>(printed); }

    Output &out_;
    std::uint32_t level_;
    std::uint64_t column_ = 0;
    std::uint32_t line_number_ = 0;
    std::uint8_t verdict_ = no_verdict;
    bool line_is_open_ = false;
};

/// Prints a record of a known type. False when the record is too short for its value.
static bool print_record(Report &report, const TlvHeader &header, ShowData record)
{
    switch (header.type.value()) {
    case tlv_number:
    case tlv_hex_word: {
        const auto *number = record.at<BigU32>(sizeof header);
        if (number == nullptr) {
            return false;
        }
        if (header.type == tlv_number) {
            report.value(header.verdict, "%u ", called("number", *number));
        } else {
            report.value(header.verdict, "%08x ", called("number", *number));
        }
        return true;
    }
    case tlv_string: {
        const auto string = record.string_at(sizeof header);
        if (!string) {
            return false;
        }
        report.value(header.verdict, "%s ", from_field(*string, *string->data(), "text"));
        return true;
    }
    case tlv_end_of_line: report.end_line(); return true;
    default: return true;
    }
}

/// Prints records up to the end of the stream, and leaves `rest` at what follows it or at the record in error.
static std::uint32_t print_stream(Report &report, ShowData &rest)
{
    constexpr const char *invalid_size = "ERROR: Invalid TLV size received!\n";
    bool ended = false;
    while (!ended && rest.size() != 0) {
        const std::uint8_t type = *rest.at<U8>(0);
        if (type == tlv_truncated) {
            return report.error("ERROR: Output has been truncated!\n");
        }
        const auto *header = rest.at<TlvHeader>(0);
        if (header == nullptr || header->length > rest.size()) {
            return report.error(invalid_size);
        }
        if (type < tlv_number || type > tlv_end_of_stream) {
            return report.error("ERROR: Unrecognized TLV type: %d\n", type);
        }
        if (header->length < sizeof *header || !print_record(report, *header, rest.first(header->length))) {
            return report.error(invalid_size);
        }
        rest = rest.from(header->length);
        ended = type == tlv_end_of_stream;
    }
    return 0;
}

std::uint32_t print_report(Output &out, std::uint32_t level, const char *key, ShowData &rest)
{
    const Section section(out, key);
    Report report{out, level};
    return print_stream(report, rest);
}

} // namespace l2fib

uint32_t zel_l2fib_print_tlv(uint32_t level, uint8_t **cursor, uint64_t *remaining)
{
    using namespace l2fib;
    if (cursor == nullptr || remaining == nullptr || (*cursor == nullptr && *remaining != 0)) {
        return L2FIB_SHOW_ERR_ARGS;
    }
    Output out;
    ShowData rest{*cursor, *remaining};
    const std::uint32_t status = print_report(out, level, "report", rest);
    *cursor = rest.bytes();
    *remaining = rest.size();
    return status;
}
