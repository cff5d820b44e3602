#include "recording/schema/schema.h"

namespace l2fib
{

using nlohmann::json;

/// What a view's lines are beside what all lines are.
static json schema_of(const ViewLines &view)
{
    json condition = {{"properties", {{"object", {{"const", view.object}}}}}, {"required", {"object"}}};
    if (!view.view.empty()) {
        condition["properties"]["view"] = {{"const", view.view}};
        condition["required"].push_back("view");
    }
    json then = {{"required", view.members.required()}};
    for (const char *part : {"rp", "hw"}) {
        if (const auto found = view.members.members().find(part); found != view.members.members().end()) {
            then["properties"][part] = found->second.schema();
        }
    }
    return {{"if", std::move(condition)}, {"then", std::move(then)}};
}

template <class Table>
static json names_of(const Table &table)
{
    json names = json::array();
    for (const auto &row : table) {
        names.push_back(row.name);
    }
    return names;
}

/// Says which names there are, where a member is one of them.
static void enumerate(json &properties)
{
    properties["object"]["enum"] = names_of(objects());
    properties["view"]["enum"] = names_of(views());
}

/// A value on a line where it fits, else with each of its members or elements on lines of their own.
static void write(std::string &text, const json &value, std::size_t indent, std::size_t column)
{
    constexpr std::size_t widest = 118;
    std::string short_form = value.dump();
    if (value.is_primitive() || column + short_form.size() <= widest) {
        text += short_form;
        return;
    }
    const auto break_line = [&text](std::size_t blanks) { text.append(1, '\n').append(blanks, ' '); };
    text += value.is_object() ? '{' : '[';
    const char *separator = "";
    for (const auto &[key, member] : value.items()) {
        text += separator;
        break_line(indent + 1);
        const std::string name = value.is_object() ? json(key).dump() + ": " : "";
        text += name;
        write(text, member, indent + 1, indent + 1 + name.size());
        separator = ",";
    }
    break_line(indent);
    text += value.is_object() ? '}' : ']';
}

std::string json_schema(const Lines &lines)
{
    json schema = lines.any().schema();
    schema["$schema"] = "https://json-schema.org/draft/2020-12/schema";
    schema["title"] = "A line that l2fib-show --json prints";
    json &properties = schema["properties"];
    properties["format"]["const"] = 1;
    properties["direction"]["enum"] = names_of(directions());
    enumerate(properties);
    enumerate(properties["counts"]["items"]["properties"]);
    const std::pair<const char *, const recording::Members *> kinds[] = {
        {"An object", &lines.objects()},
        {"The bytes of an object, by --bytes", &lines.bytes()},
        {"The numbers of objects, by --count", &lines.counts()},
    };
    for (const auto &[title, members] : kinds) {
        schema["anyOf"].push_back({{"title", title}, {"required", members->required()}});
    }
    for (const ViewLines &view : lines.views()) {
        schema["allOf"].push_back(schema_of(view));
    }
    std::string text;
    write(text, schema, 0, 0);
    return text + '\n';
}

} // namespace l2fib
