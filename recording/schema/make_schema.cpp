// Writes the JSON Schema of the lines that l2fib-show --json prints, and the document of them:
//     make-schema SOURCES SCHEMA DOCUMENT
#include "recording/schema/corpus.h"
#include "recording/schema/document.h"
#include "recording/schema/schema.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace l2fib
{

static std::string text_of(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

static bool write(const std::string &path, const std::string &text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush()) {
        std::cerr << "make-schema: cannot write " << path << '\n';
        return false;
    }
    return true;
}

static void replace(std::string &text, const std::string &what, const std::string &with)
{
    text.replace(text.find(what), what.size(), with);
}

static int make_schema(const std::string &sources, const std::string &schema_file, const std::string &document_file)
{
    const Lines lines(sources + "/examples");
    std::ifstream table(sources + "/recording/schema/meanings.tsv");
    Meanings meanings(table);
    std::string document = text_of(sources + "/recording/schema/json-format.md.in");
    replace(document, "@PATHS@", table_of_paths(lines, meanings));
    const std::vector<Capture> all = samples();
    const auto mac = std::find_if(all.begin(), all.end(), [](const Capture &capture) {
        return capture.object->name == std::string("mac") && capture.show_data[13] == 12;
    });
    replace(document, "@EXAMPLE@", nlohmann::ordered_json::parse(line_of(*mac)).dump(1));
    for (const std::string &complaint : meanings.complaints()) {
        std::cerr << "recording/schema/meanings.tsv: " << complaint << '\n';
    }
    const bool is_written = write(schema_file, json_schema(lines)) && write(document_file, document);
    return is_written && meanings.complaints().empty() ? 0 : 1;
}

} // namespace l2fib

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::cerr << "usage: make-schema SOURCES SCHEMA DOCUMENT\n";
        return 2;
    }
    return l2fib::make_schema(argv[1], argv[2], argv[3]);
}
