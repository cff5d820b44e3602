// The bytes of a file, those that gzip, xz or zstd compressed as they were before.
#pragma once

#include "client/compressed/format.h"
#include "client/file_part.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace l2fib
{

/// What a file is taken for when its first bytes are those of a compressed one.
enum class Compressed : std::uint8_t {
    by_magic,  ///< it is one
    by_header, ///< only if all of its header is
    never,
};

/// A file, or standard input for "-".
class ByteSource
{
public:
    ByteSource(std::string path, Compressed compressed);
    ~ByteSource();
    ByteSource(const ByteSource &) = delete;
    ByteSource &operator=(const ByteSource &) = delete;

    /// Reads some bytes, at most as many as there is room; 0 at the end of the file.
    std::size_t read(std::span<char> room);

    /// Leaves whole lines to somebody else who reads them at their place in the file: those from so many bytes before
    /// what would be read next, up to the end of the line that goes beyond the usual size by less than the longest
    /// line. None where there are not so many bytes, or where bytes have no place.
    std::optional<FilePart> skip_lines(std::size_t bytes_before, std::size_t usual_size, std::size_t longest_line);

    /// Whether there is something to read, or the end, without waiting longer than anybody notices.
    [[nodiscard]] bool is_ready() const;

    /// Why nothing more could be read; empty when all was.
    [[nodiscard]] const std::string &error() const { return error_; }

private:
    std::size_t read_file(std::span<char> room);
    std::size_t read_beginning(std::span<char> room);
    std::size_t decompress(std::span<char> room);
    bool has_compressed();
    void fail(const std::string &why);

    std::string path_;
    Compressed compressed_;
    int file_;
    std::string error_;
    bool is_begun_ = false;
    const CompressedFormat *format_ = nullptr;
    std::unique_ptr<Decompressor> decompressor_; ///< null for what is not compressed
    bool is_stream_whole_ = false;
    bool is_room_short_ = false; ///< so that more may come of bytes that were taken
    std::vector<char> buffer_;
    std::string_view unread_; ///< of the buffer
    std::size_t taken_ = 0;   ///< compressed bytes
};

struct WholeFile {
    std::vector<char> content; ///< up to one byte more than was wanted
    std::string error;         ///< why nothing more could be read; empty when all was
};

/// Reads a file, or standard input for "-", up to one byte more than `longest`.
WholeFile read_whole_file(const std::string &path, std::size_t longest, Compressed compressed);

} // namespace l2fib
