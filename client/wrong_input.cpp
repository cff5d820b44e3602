#include "client/wrong_input.h"

#include "client/hex_dump.h"
#include "client/show_data_file.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace l2fib
{

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view to_replay = " | l2fib-show replay -";

static bool is_text(std::string_view content)
{
    return std::all_of(content.begin(), content.end(),
                       [](char c) { return (c >= ' ' && c <= '~') || c == '\n' || c == '\r' || c == '\t'; });
}

/// Whether a text has what no text has, whatever its encoding.
static bool has_control_characters(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\r' && c != '\t';
    });
}

static std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

static std::string to_make_lines(bool is_array)
{
    return (is_array ? "an array: jq -c '.[]' FILE" : "JSON over several lines: jq -c . FILE") + std::string(to_replay);
}

/// What it is by itself, whatever was wanted.
static std::string certain_form(std::string_view content)
{
    const std::string_view text = trimmed(content);
    if (!text.starts_with('{') && !text.starts_with('[')) {
        return {};
    }
    const bool is_array = text.front() == '[';
    const std::string_view line = trimmed(text.substr(0, text.find('\n')));
    if (!is_array && nlohmann::json::accept(line)) {
        return "captures: use l2fib-show replay FILE";
    }
    const bool is_first_of_lines = line.size() == 1 && line.size() < text.size() && is_text(text);
    return is_first_of_lines || nlohmann::json::accept(text) ? to_make_lines(is_array) : std::string();
}

std::string other_than_show_data(std::string_view content)
{
    std::string form = certain_form(content);
    if (!form.empty() || trimmed(content).empty() || !is_text(content)) {
        return form;
    }
    const HexBytes read = read_hex_dump(content, HexForm::any, longest_show_data);
    return read.error.empty() ? "a hex dump: add --hex" : "text, not show data; as a hex dump: " + read.error;
}

std::string other_than_hex_dump(std::string_view content)
{
    std::string form = certain_form(content);
    return form.empty() && has_control_characters(content) ? "bytes, not a hex dump: use --format raw" : form;
}

std::string other_than_captures(std::string_view line)
{
    const std::string_view text = trimmed(line);
    if (has_control_characters(text)) {
        return "bytes, not captures: use l2fib-show OBJECT FILE for show data";
    }
    if (text.starts_with('[') || text == "{") {
        return to_make_lines(text.front() == '[');
    }
    const bool is_hex = !text.empty() && read_hex_dump(text, HexForm::any, longest_show_data).error.empty();
    return is_hex ? "a hex dump: use l2fib-show OBJECT --hex FILE" : "";
}

} // namespace l2fib
