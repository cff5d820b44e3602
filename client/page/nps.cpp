#include "client/page/nps.h"

#include "client/check/statements.h"
#include "client/page/values.h"

#include <algorithm>

namespace l2fib
{

using recording::TreeValue;

class NpTable
{
public:
    NpTable(HtmlWriter &out, const CheckedView &view, const Links &links) : out_(out), view_(view), links_(links) {}

    void write();

private:
    void write_heading();
    void write_row(std::size_t row);
    void take_texts(std::size_t row);
    [[nodiscard]] const std::string *usual_text() const;
    [[nodiscard]] std::optional<Level> level_of(std::size_t row) const;

    HtmlWriter &out_;
    const CheckedView &view_;
    const Links &links_;
    std::vector<std::string> texts_; ///< of a row
};

void NpTable::take_texts(std::size_t row)
{
    texts_.clear();
    for (std::size_t np = 0; np < view_.nps(); ++np) {
        const TreeValue *value = view_.cell(row, np);
        texts_.push_back(value == nullptr ? std::string() : shown_text(view_.tree(), *value));
    }
}

/// What most NPs say; null when no text is that of most.
const std::string *NpTable::usual_text() const
{
    const std::string *candidate = nullptr;
    std::size_t lead = 0;
    for (const std::string &text : texts_) {
        candidate = lead == 0 ? &text : candidate;
        lead = *candidate == text ? lead + 1 : lead - 1;
    }
    const auto count = static_cast<std::size_t>(std::count(texts_.begin(), texts_.end(), *candidate));
    return 2 * count > texts_.size() ? candidate : nullptr;
}

std::optional<Level> NpTable::level_of(std::size_t row) const
{
    std::optional<Level> worst;
    for (std::size_t np = 0; np < view_.nps() && links_.has_marks(); ++np) {
        if (const TreeValue *value = view_.cell(row, np)) {
            const std::optional<Level> level = links_.level_of(view_.tree().path_of(*value));
            worst = level && (!worst || *level < *worst) ? level : worst;
        }
    }
    return worst;
}

void NpTable::write_row(std::size_t row)
{
    take_texts(row);
    const std::string *usual = usual_text();
    const bool differs =
        std::any_of(texts_.begin(), texts_.end(), [&](const std::string &t) { return t != texts_[0]; });
    const std::string_view mark = class_of(level_of(row));
    const HtmlElement element(out_, "tr", {{"class", mark.empty() && differs ? "d" : mark}});
    out_.element("th", view_.first_of_row(row).key);
    for (std::size_t np = 0; np < view_.nps(); ++np) {
        const bool is_odd = differs && (usual == nullptr || texts_[np] != *usual);
        const HtmlElement cell(out_, "td", {{"class", is_odd ? "x" : ""}});
        if (const TreeValue *value = view_.cell(row, np)) {
            write_value(out_, view_.tree(), *value, links_);
        }
    }
}

void NpTable::write_heading()
{
    const HtmlElement row(out_, "tr");
    out_.element("td", "");
    for (std::size_t np = 0; np < view_.nps(); ++np) {
        out_.element("th", party_of(view_, view_.np_section(np)), {{"scope", "col"}});
    }
}

void NpTable::write()
{
    const HtmlElement table(out_, "table", {{"class", "v w"}});
    write_heading();
    const std::string columns = std::to_string(view_.nps() + 1);
    const std::size_t rows = std::min(view_.rows(), most_rows);
    for (std::size_t row = 0; row < rows; ++row) {
        const TreeValue &first = view_.first_of_row(row);
        if (first.pattern == recording::pattern_of("hw.nps[].np") && !first.place) {
            continue; // the columns say it
        }
        if (row == 0 || !view_.are_of_a_section(row, row - 1)) {
            const HtmlElement heading(out_, "tr");
            const std::string part = part_of(view_, first.section);
            out_.element("th", part.empty() ? "NP" : part, {{"colspan", columns}, {"class", "g"}});
        }
        write_row(row);
    }
}

void write_nps(HtmlWriter &out, const CheckedView &view, const Links &links)
{
    if (view.rows() != 0) {
        NpTable(out, view, links).write();
    }
}

} // namespace l2fib
