// The report of a consistency check: an AC whose line card disagrees with the route processor.
#include "examples/captures.h"

#include <string_view>

namespace l2fib
{

enum Verdict : std::uint8_t { none = 1, ok = 2, warning = 3, error = 4 };

/// Composes a report of type-length-value records.
class ReportBuilder
{
public:
    ReportBuilder &string(std::string_view text, Verdict verdict = none)
    {
        begin(3, text.size() + 1, verdict);
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        bytes_.push_back(0);
        return *this;
    }
    ReportBuilder &number(std::uint32_t value, Verdict verdict = none) { return word(1, value, verdict); }
    ReportBuilder &hex(std::uint32_t value, Verdict verdict = none) { return word(2, value, verdict); }
    ReportBuilder &end_line()
    {
        begin(4, 0, none);
        return *this;
    }
    ReportBuilder &end_report()
    {
        begin(5, 0, none);
        return *this;
    }

    [[nodiscard]] const std::vector<std::uint8_t> &bytes() const { return bytes_; }

private:
    void begin(std::uint8_t type, std::size_t value_size, Verdict verdict)
    {
        bytes_.insert(bytes_.end(), {type, static_cast<std::uint8_t>(3 + value_size), verdict});
    }
    ReportBuilder &word(std::uint8_t type, std::uint32_t value, Verdict verdict)
    {
        begin(type, sizeof value, verdict);
        for (unsigned shift = 32; shift != 0; shift -= 8) {
            bytes_.push_back(static_cast<std::uint8_t>(value >> (shift - 8)));
        }
        return *this;
    }

    std::vector<std::uint8_t> bytes_;
};

std::vector<std::uint8_t> make_ac_inconsistency()
{
    ReportBuilder report;
    report.string("AC").hex(0x0a000440).string("on rack").number(0).end_line();
    report.string("State: Bound", ok).end_line();
    report.string("XID").hex(0x00340003, ok).string("bridge").number(12, ok).end_line();
    report.string("MAC limit").number(4000).string("configured").number(2000, warning).end_line();
    report.end_report();

    report.string("NP0").end_line();
    report.string("uIDB: present", ok).end_line();
    report.string("XID entry: bridge domain").number(13).string("expected").number(12, error).end_line();
    report.string("NP1").end_line();
    report.string("uIDB: present", ok).end_line();
    report.string("XID entry: not programmed on this NP, its split-horizon group is not known", error).end_line();
    return report.end_report().bytes();
}

} // namespace l2fib
