#include "client/show_data_file.h"

#include "client/byte_source.h"
#include "client/wrong_input.h"

namespace l2fib
{

static HexBytes bytes_of(std::string_view text, const ChosenFormat &format)
{
    if (format.hex) {
        HexBytes read = read_hex_dump(text, *format.hex, longest_show_data);
        if (const std::string form = read.error.empty() ? "" : other_than_hex_dump(text); !form.empty()) {
            read.error = form;
        }
        return read;
    }
    if (const std::string form = format.is_told ? "" : other_than_show_data(text); !form.empty()) {
        return {{}, form};
    }
    if (text.size() > longest_show_data) {
        return {{}, "more bytes than any show data has"};
    }
    return {{text.begin(), text.end()}, {}};
}

ShowDataFile read_show_data(const std::string &path, const ChosenFormat &format)
{
    constexpr std::size_t longest_dump = 8 * longest_show_data; // with its offsets and characters
    const bool are_plain_bytes = format.is_told && !format.hex;
    const Compressed compressed = are_plain_bytes ? Compressed::never
                                  : format.hex    ? Compressed::by_magic
                                                  : Compressed::by_header;
    const WholeFile file = read_whole_file(path, longest_dump, compressed);
    if (!file.error.empty()) {
        return {{}, file.error};
    }
    HexBytes bytes = bytes_of({file.content.data(), file.content.size()}, format);
    if (!bytes.error.empty()) {
        return {{}, path + ": " + bytes.error};
    }
    if (bytes.bytes.empty()) {
        return {{}, path + ": no show data"};
    }
    return {std::move(bytes.bytes), {}};
}

} // namespace l2fib
