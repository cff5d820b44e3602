#include "client/page/html_writer.h"

#include <array>

namespace l2fib
{

/// What stands for a character that markup is made of; empty for others.
static std::string_view entity_of(char c)
{
    switch (c) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\'': return "&#39;";
    default: return {};
    }
}

/// The one way of text into the page. What is no plain character is spelled out, as in --bytes: it could turn the
/// direction of the text around, or be half a character.
void HtmlWriter::escape(std::string_view text)
{
    std::size_t plain = 0; // where those begin that need nothing
    const auto end_plain = [&](std::size_t at) {
        put(text.substr(plain, at - plain));
        plain = at + 1;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (const std::string_view entity = entity_of(c); !entity.empty()) {
            end_plain(i);
            put(entity);
        } else if (c < ' ' || c > '~') {
            end_plain(i);
            std::array<char, sizeof "\\xff"> code{};
            std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned char>(c));
            put(code.data());
        }
    }
    end_plain(text.size());
}

void HtmlWriter::open(const char *tag, HtmlAttributes attributes)
{
    put("<");
    put(tag);
    for (const HtmlAttribute &attribute : attributes) {
        if (!attribute.value.empty()) {
            put(" ");
            put(attribute.name);
            put("=\"");
            escape(attribute.value);
            put("\"");
        }
    }
    put(">");
}

void HtmlWriter::close(const char *tag)
{
    put("</");
    put(tag);
    put(">");
}

void HtmlWriter::element(const char *tag, std::string_view text, HtmlAttributes attributes)
{
    open(tag, attributes);
    escape(text);
    close(tag);
}

void HtmlWriter::embed(const char *tag, std::string_view content)
{
    open(tag);
    put(content);
    close(tag);
}

} // namespace l2fib
