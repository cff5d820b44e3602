#include "client/show_data_file.h"

#include "client/input.h"

namespace l2fib
{

static HexBytes bytes_of(std::string_view text, std::optional<HexForm> hex)
{
    if (hex) {
        return read_hex_dump(text, *hex, longest_show_data);
    }
    if (text.size() > longest_show_data) {
        return {{}, "more bytes than any show data has"};
    }
    return {{text.begin(), text.end()}, {}};
}

ShowDataFile read_show_data(const std::string &path, std::optional<HexForm> hex)
{
    constexpr std::size_t longest_dump = 8 * longest_show_data; // with its offsets and characters
    Input input(path);
    const std::string_view text = input.read_all(longest_dump);
    if (!input.error().empty()) {
        return {{}, input.error()};
    }
    HexBytes bytes = bytes_of(text, hex);
    if (!bytes.error.empty()) {
        return {{}, path + ": " + bytes.error};
    }
    if (bytes.bytes.empty()) {
        return {{}, path + ": no show data"};
    }
    return {std::move(bytes.bytes), {}};
}

} // namespace l2fib
