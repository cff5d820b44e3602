#include "client/page/object_article.h"

#include "client/page/bytes.h"
#include "client/page/finding_list.h"
#include "client/page/nps.h"
#include "client/page/values.h"
#include "client/rendering.h"

#include <algorithm>

namespace l2fib
{

void ObjectArticle::begin(Capture &capture, const CapturePlace &place, std::size_t number)
{
    received_ = capture.show_data;
    recorded_ = capture;
    xid_ = capture.object->xid(received_);
    tree_.begin(capture.show_data);
    const std::uint32_t status = record_view(capture, tree_);
    bytes_.begin(recorded_.show_data);
    record_view(recorded_, bytes_);
    view_.begin(tree_, received_, capture.byte_order->order);

    object_.file = place.file;
    object_.line = place.line();
    object_.kind = capture.object->name;
    object_.name = name_of(capture, xid_, tree_);
    object_.unchecked = reason_not_to_check(tree_, status);
    object_.findings.clear();
    if (object_.unchecked.empty()) {
        object_.findings = check_.check(*capture.object, view_);
    }
    links_.begin(number, view_, bytes_, object_.findings);
}

bool ObjectArticle::has_findings() const
{
    return std::any_of(object_.findings.begin(), object_.findings.end(),
                       [](const Finding &finding) { return finding.level != Level::may_differ; });
}

void ObjectArticle::write_heading(HtmlWriter &out) const
{
    out.element("h3", object_.name);
    out.text(" ");
    out.element("span", object_.place());
    if (!object_.unchecked.empty()) {
        out.text(" ");
        out.element("b", object_.unchecked);
    }
}

void ObjectArticle::write_body(HtmlWriter &out)
{
    for (const recording::FailureNote &failure : tree_.failures()) {
        out.element("p", failure.text, {{"class", "e"}});
    }
    const HtmlElement panes(out, "div", {{"class", "s"}});
    {
        const HtmlElement pane(out, "section");
        out.element("h4", "Values");
        write_values(out, view_, links_);
        write_nps(out, view_, links_);
    }
    const HtmlElement pane(out, "section");
    out.element("h4", "Bytes");
    write_bytes(out, bytes_, received_, links_);
}

/// What was found is open. The values and bytes are folded, and within <noscript>: a browser with scripts takes that
/// for one text, so that thousands of objects cost it little, until the page's script unfolds one of them.
void ObjectArticle::write(std::FILE *stream)
{
    HtmlWriter out(stream);
    {
        const HtmlElement article(out, "article", {{"id", links_.object_id()}});
        if (has_findings()) {
            {
                const HtmlElement header(out, "header");
                write_heading(out);
            }
            write_findings(out, object_.findings, received_, links_);
        }
        const HtmlElement details(out, "details");
        {
            const HtmlElement summary(out, "summary");
            has_findings() ? out.text("Values and bytes") : write_heading(out);
        }
        const HtmlElement folded(out, "noscript");
        if (!has_findings()) {
            write_findings(out, object_.findings, received_, links_);
        }
        write_body(out);
    }
    out.end_line();
}

} // namespace l2fib
