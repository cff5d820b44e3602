// An object on the page: what is found in it, its values, its NPs and its bytes.
#pragma once

#include "client/check/checked_object.h"
#include "client/check/object_check.h"
#include "client/page/html_writer.h"
#include "client/page/links.h"

namespace l2fib
{

class ObjectArticle
{
public:
    /// Records the view of a capture and checks it.
    void begin(Capture &capture, const CapturePlace &place, std::size_t number);

    [[nodiscard]] const CheckedObject &object() const { return object_; }
    [[nodiscard]] const CheckedView &view() const { return view_; }
    [[nodiscard]] std::optional<std::uint32_t> xid() const { return xid_; }

    /// Whether there is a finding that is not most often right.
    [[nodiscard]] bool has_findings() const;

    void write(std::FILE *stream);

private:
    void write_heading(HtmlWriter &out) const;
    void write_body(HtmlWriter &out);

    CheckedObject object_;
    std::optional<std::uint32_t> xid_;
    std::vector<std::uint8_t> received_;
    Capture recorded_; ///< a view converts its show data, and there are two of it
    recording::Tree tree_;
    recording::BytesRecorder bytes_;
    CheckedView view_;
    ObjectCheck check_;
    Links links_;
};

} // namespace l2fib
