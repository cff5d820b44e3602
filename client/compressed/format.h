// How files are compressed, by their first bytes.
#pragma once

#include "client/compressed/decompressor.h"

namespace l2fib
{

struct CompressedFormat {
    const char *name;
    std::string_view magic;
    const char *command;                     ///< that decompresses it
    std::unique_ptr<Decompressor> (*open)(); ///< null where this build has no library for it
};

/// The longest that is looked at.
constexpr std::size_t longest_compressed_header = 18;

/// Null for what is not compressed. Show data may begin with anything, so `certain` asks for more than two bytes that
/// the number of a bridge may have.
const CompressedFormat *compressed_format(std::string_view content, bool certain);

/// Whether more bytes decide whether these are the first of something compressed.
bool may_be_compressed(std::string_view beginning);

} // namespace l2fib
