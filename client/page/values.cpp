#include "client/page/values.h"

#include "client/check/statements.h"

#include <algorithm>

namespace l2fib
{

using recording::Tree;
using recording::TreeValue;

std::string shown_text(const Tree &tree, const TreeValue &value)
{
    if (!value.is_word) {
        return text_of(value);
    }
    std::string names;
    for (const std::string_view name : tree.flags_of(value)) {
        names += names.empty() ? "" : ", ";
        names += name;
    }
    return names.empty() ? "no flags" : names;
}

/// Whether a text is another way of saying its number.
static bool is_name(const TreeValue &value, std::string_view text)
{
    return value.has_number && !text.starts_with("0x") && text != "true" && text != "false" &&
           text.find_first_not_of("-0123456789") != std::string_view::npos;
}

void write_value(HtmlWriter &out, const Tree &tree, const TreeValue &value, const Links &links)
{
    const std::string text = shown_text(tree, value);
    const std::string bytes = links.to_bytes_of(value);
    if (bytes.empty()) {
        out.text(text);
    } else {
        out.element("a", text.empty() ? "(empty)" : text, {{"id", links.value_id(value)}, {"href", bytes}});
    }
    if (is_name(value, text)) {
        out.element("i", std::to_string(value.number));
    }
}

/// What the screen has in front of a value, where that says more than its key.
static std::string_view label_of(const TreeValue &value)
{
    std::string_view label = value.label;
    constexpr std::string_view around = " \t\n:,=(-";
    label.remove_prefix(std::min(label.find_first_not_of(around), label.size()));
    if (label.ends_with("0x")) {
        label.remove_suffix(2);
    }
    label = label.substr(0, label.find_last_not_of(around) + 1);
    return recording::key_of_label(label) == value.key ? std::string_view{} : label;
}

/// Whether the table of the NPs has a value.
static bool is_in_np_table(const CheckedView &view, const TreeValue &value)
{
    const auto row = view.row_of(value);
    for (std::size_t np = 0; row && np < view.nps(); ++np) {
        if (view.cell(*row, np) == &value) {
            return true;
        }
    }
    return false;
}

/// The values by their sections, in the order of the screen: a section goes on after those that are in it.
static std::vector<const TreeValue *> values_by_section(const CheckedView &view)
{
    std::vector<const TreeValue *> values;
    for (const TreeValue &value : view.tree().values()) {
        if (!is_in_np_table(view, value)) {
            values.push_back(&value);
        }
    }
    std::stable_sort(values.begin(), values.end(),
                     [](const TreeValue *a, const TreeValue *b) { return a->section < b->section; });
    return values;
}

static void write_row(HtmlWriter &out, const Tree &tree, const TreeValue &value, const Links &links)
{
    const auto level = links.has_marks() ? links.level_of(tree.path_of(value)) : std::nullopt;
    const HtmlElement row(out, "tr", {{"class", class_of(level)}});
    {
        const HtmlElement heading(out, "th");
        out.text(value.key);
        if (const std::string_view label = label_of(value); !label.empty()) {
            out.element("small", label);
        }
    }
    const HtmlElement cell(out, "td");
    write_value(out, tree, value, links);
}

void write_values(HtmlWriter &out, const CheckedView &view, const Links &links)
{
    const Tree &tree = view.tree();
    const std::vector<const TreeValue *> values = values_by_section(view);
    if (values.empty()) {
        return;
    }
    const HtmlElement table(out, "table", {{"class", "v"}});
    const TreeValue *before = nullptr;
    for (const TreeValue *value : std::span(values).first(std::min(values.size(), most_rows))) {
        if (before == nullptr || before->section != value->section) {
            const HtmlElement row(out, "tr");
            const std::string path = tree.path_of(value->section);
            out.element("th", path.empty() ? "object" : path, {{"colspan", "2"}, {"class", "g"}});
        }
        write_row(out, tree, *value, links);
        before = value;
    }
    if (values.size() > most_rows) {
        const HtmlElement row(out, "tr");
        out.element("td", std::to_string(values.size() - most_rows) + " more values: l2fib-show replay --json",
                    {{"colspan", "2"}});
    }
}

} // namespace l2fib
