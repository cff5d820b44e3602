// HTML that holds text of others. Show data, captures and file names may hold markup and scripts; here they are text.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <string_view>

namespace l2fib
{

/// Left out when its value is empty.
struct HtmlAttribute {
    const char *name;
    std::string_view value;
};

using HtmlAttributes = std::initializer_list<HtmlAttribute>;

/// Writes ASCII only: a browser that takes the page for one of another encoding still reads the same.
class HtmlWriter
{
public:
    explicit HtmlWriter(std::FILE *stream) : stream_(stream) {}

    void open(const char *tag, HtmlAttributes attributes = {});
    void close(const char *tag);
    void text(std::string_view text) { escape(text); }

    /// An element that holds only text.
    void element(const char *tag, std::string_view text, HtmlAttributes attributes = {});

    /// A style sheet or script of the client's own, as it is.
    void embed(const char *tag, std::string_view content);

    void doctype() { put("<!DOCTYPE html>\n"); }
    void end_line() { put("\n"); }

private:
    void escape(std::string_view text);
    void put(std::string_view markup) { std::fwrite(markup.data(), 1, markup.size(), stream_); }

    std::FILE *stream_;
};

/// An element that is open as long as this lives.
class HtmlElement
{
public:
    HtmlElement(HtmlWriter &out, const char *tag, HtmlAttributes attributes = {}) : out_(out), tag_(tag)
    {
        out_.open(tag_, attributes);
    }
    ~HtmlElement() { out_.close(tag_); }
    HtmlElement(const HtmlElement &) = delete;
    HtmlElement &operator=(const HtmlElement &) = delete;

private:
    HtmlWriter &out_;
    const char *tag_;
};

} // namespace l2fib
