#include "client/page/finding_list.h"

#include "client/check/statements.h"
#include "client/page/bytes.h"

#include <algorithm>

namespace l2fib
{

using Bytes = std::span<const std::uint8_t>;

std::string counted(std::size_t count, const char *one, const char *many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

/// "0x28a: 00 00 00 01"
static std::string text_of(const ByteRange &range, Bytes received)
{
    constexpr std::size_t most = 8;
    return "0x" + hex_number(range.offset) + ": " +
           hex_pairs(received.subspan(range.offset, std::min(range.width, most))) + (range.width > most ? " ..." : "");
}

static void write_text(HtmlWriter &out, const Statement &statement)
{
    const HtmlElement cell(out, "td");
    out.text(statement.text);
    if (statement.number) {
        out.element("i", std::to_string(*statement.number));
    }
}

static void write_heading(HtmlWriter &out, const Finding &finding)
{
    const HtmlElement heading(out, "h4", {{"class", class_of(finding.level)}});
    out.text(finding.level == Level::note ? "note: " : "");
    out.text(finding.what + ": " + finding.who);
}

static std::string_view class_of(const Statement &statement)
{
    return statement.is_odd ? "x" : "";
}

static void write_finding(HtmlWriter &out, const Finding &finding, Bytes received, const Links &links)
{
    const HtmlElement block(out, "div", {{"class", "f"}});
    write_heading(out, finding);
    {
        const HtmlElement table(out, "table");
        for (const Statement &statement : finding.statements) {
            const HtmlElement row(out, "tr", {{"class", class_of(statement)}});
            out.element("th", names_in_a_row(statement.parties));
            write_text(out, statement);
            {
                const HtmlElement cell(out, "td");
                const auto &bytes = statement.bytes;
                if (bytes && bytes->offset + bytes->width <= received.size()) {
                    out.element("a", text_of(*bytes, received), {{"href", links.to_bytes_at(bytes->offset)}});
                }
            }
            out.element("td", statement.path);
        }
    }
    out.element("p", finding.meaning);
}

void write_finding(HtmlWriter &out, const Finding &finding, const ToObject &to_object)
{
    const HtmlElement block(out, "div", {{"class", "f"}});
    write_heading(out, finding);
    {
        const HtmlElement table(out, "table");
        for (const Statement &statement : finding.statements) {
            const HtmlElement row(out, "tr", {{"class", class_of(statement)}});
            {
                const HtmlElement heading(out, "th");
                for (const std::string &place : statement.parties) {
                    out.element("a", place, {{"href", to_object(place)}});
                }
            }
            write_text(out, statement);
        }
    }
    out.element("p", finding.meaning);
}

/// Those of a kind. Of very many, which only hostile show data has, the first ones.
static void write_all(HtmlWriter &out, std::span<const Finding *const> findings, Bytes received, const Links &links)
{
    constexpr std::size_t most = 1000;
    for (const Finding *finding : findings.first(std::min(findings.size(), most))) {
        write_finding(out, *finding, received, links);
    }
    if (findings.size() > most) {
        out.element("p", std::to_string(findings.size() - most) + " more: l2fib-show check");
    }
}

void write_findings(HtmlWriter &out, const std::vector<Finding> &findings, Bytes received, const Links &links)
{
    std::vector<const Finding *> told;
    std::vector<const Finding *> folded;
    for (const Finding &finding : findings) {
        (finding.level == Level::may_differ ? folded : told).push_back(&finding);
    }
    write_all(out, told, received, links);
    if (!folded.empty()) {
        const HtmlElement details(out, "details");
        out.element("summary",
                    counted(folded.size(), "difference that is", "differences that are") + " most often right");
        write_all(out, folded, received, links);
    }
}

} // namespace l2fib
