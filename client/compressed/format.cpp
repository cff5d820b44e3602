#include "client/compressed/format.h"

#include <algorithm>

namespace l2fib
{

using namespace std::string_view_literals;

static constexpr CompressedFormat formats[] = {
    {"gzip", "\x1f\x8b\x08"sv, "zcat", L2FIB_GZIP},
    {"xz",
     "\xfd"
     "7zXZ\0"sv,
     "xzcat", L2FIB_XZ},
    {"zstd", "\x28\xb5\x2f\xfd"sv, "zstdcat", L2FIB_ZSTD},
};

/// Whether the rest of a gzip header is one: its magic is too short to tell it from the number of a bridge.
static bool is_gzip_header(std::string_view content)
{
    constexpr unsigned char unused_flags = 0xe0;
    constexpr std::size_t at_flags = 3;
    constexpr std::size_t at_effort = 8;
    constexpr std::size_t at_system = 9;
    constexpr unsigned char last_system = 13;
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(content[at]); };
    return content.size() >= longest_compressed_header && (byte(at_flags) & unused_flags) == 0 &&
           (byte(at_effort) == 0 || byte(at_effort) == 2 || byte(at_effort) == 4) &&
           (byte(at_system) <= last_system || byte(at_system) == 0xff);
}

const CompressedFormat *compressed_format(std::string_view content, bool certain)
{
    for (const CompressedFormat &format : formats) {
        if (content.starts_with(format.magic)) {
            return !certain || &format != formats || is_gzip_header(content) ? &format : nullptr;
        }
    }
    return nullptr;
}

bool may_be_compressed(std::string_view beginning)
{
    return beginning.size() < longest_compressed_header &&
           std::any_of(std::begin(formats), std::end(formats), [&](const CompressedFormat &format) {
               return beginning.starts_with(format.magic.substr(0, beginning.size()));
           });
}

} // namespace l2fib
