#include "client/byte_source.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace l2fib
{

ByteSource::ByteSource(std::string path, Compressed compressed)
    : path_(std::move(path)), compressed_(compressed),
      file_(path_ == "-" ? STDIN_FILENO : open(path_.c_str(), O_RDONLY | O_CLOEXEC))
{
    if (file_ < 0) {
        fail(std::strerror(errno));
    }
    fcntl(file_, F_SETPIPE_SZ, 1 << 20); // of a pipe: so that its writer can go on while what was read is done
}

ByteSource::~ByteSource()
{
    if (file_ >= 0 && file_ != STDIN_FILENO) {
        close(file_);
    }
}

bool ByteSource::is_ready() const
{
    pollfd file{file_, POLLIN, 0};
    constexpr int unnoticed_milliseconds = 20;
    return !unread_.empty() || is_room_short_ || poll(&file, 1, unnoticed_milliseconds) != 0;
}

void ByteSource::fail(const std::string &why)
{
    error_ = (path_.empty() ? "''" : path_) + ": " + why;
}

std::size_t ByteSource::read_file(std::span<char> room)
{
    ssize_t count = 0;
    do {
        count = ::read(file_, room.data(), room.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        fail(std::strerror(errno));
        return 0;
    }
    return static_cast<std::size_t>(count);
}

std::optional<FilePart> ByteSource::skip_lines(std::size_t bytes_before, std::size_t usual_size,
                                               std::size_t longest_line)
{
    struct stat file = {};
    const off_t begin = decompressor_ ? -1 : lseek(file_, 0, SEEK_CUR) - static_cast<off_t>(bytes_before);
    if (begin < 0 || fstat(file_, &file) != 0 || file.st_size - begin < static_cast<off_t>(usual_size)) {
        return std::nullopt;
    }
    std::array<char, std::size_t{1} << 12U> piece{};
    ssize_t count = 1;
    for (std::size_t size = usual_size; count > 0 && size < usual_size + longest_line;) {
        count = pread(file_, piece.data(), piece.size(), begin + static_cast<off_t>(size));
        const std::string_view read(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        const std::size_t end = read.find('\n');
        if (end != std::string_view::npos) {
            size += end + 1;
            lseek(file_, begin + static_cast<off_t>(size), SEEK_SET);
            return FilePart{file_, begin, size};
        }
        size += read.size();
    }
    return std::nullopt;
}

std::size_t ByteSource::read(std::span<char> room)
{
    if (!error_.empty()) {
        return 0;
    }
    if (!is_begun_) {
        is_begun_ = true;
        return read_beginning(room);
    }
    return decompressor_ ? decompress(room) : read_file(room);
}

/// Reads what says whether the file is compressed, which may come in pieces.
std::size_t ByteSource::read_beginning(std::span<char> room)
{
    std::size_t size = read_file(room);
    const auto beginning = [&] { return std::string_view(room.data(), size); };
    if (compressed_ == Compressed::never) {
        return size;
    }
    while (size < room.size() && may_be_compressed(beginning())) {
        const std::size_t more = read_file(room.subspan(size));
        if (more == 0) {
            break;
        }
        size += more;
    }
    format_ = compressed_format(beginning(), compressed_ == Compressed::by_header);
    if (format_ == nullptr) {
        return size;
    }
    if (format_->open == nullptr) {
        fail(std::string(format_->name) + ", which is not read here: " + format_->command + " FILE | l2fib-show ... -");
        return 0;
    }
    decompressor_ = format_->open();
    constexpr std::size_t buffer_size = std::size_t{1} << 16U;
    buffer_.resize(std::max(size, buffer_size));
    std::copy_n(room.begin(), size, buffer_.begin());
    unread_ = {buffer_.data(), size};
    return decompress(room);
}

/// Whether compressed bytes are left. Between streams, zeros are no more than padding.
bool ByteSource::has_compressed()
{
    for (;;) {
        if (is_stream_whole_) {
            const std::size_t padding = std::min(unread_.find_first_not_of('\0'), unread_.size());
            unread_.remove_prefix(padding);
            taken_ += padding;
        }
        if (!unread_.empty()) {
            return true;
        }
        unread_ = {buffer_.data(), read_file(buffer_)};
        if (unread_.empty()) {
            return false;
        }
    }
}

std::size_t ByteSource::decompress(std::span<char> room)
{
    while (has_compressed() || is_room_short_) {
        const Decompressor::Step step = decompressor_->step(unread_, room);
        unread_.remove_prefix(step.taken);
        taken_ += step.taken;
        is_stream_whole_ = step.state == Decompressor::State::ended;
        is_room_short_ = step.state == Decompressor::State::going_on && step.given == room.size();
        if (step.state == Decompressor::State::broken) {
            fail(std::string(format_->name) + " is broken at byte " + std::to_string(taken_ + 1));
        } else if (step.state == Decompressor::State::too_large) {
            fail(std::string(format_->name) + " with a larger window than is read here");
        }
        if (step.given != 0 || !error_.empty()) {
            return step.given;
        }
    }
    if (error_.empty() && !is_stream_whole_) {
        fail(std::string(format_->name) + " ends early, after " + std::to_string(taken_) + " bytes");
    }
    return 0;
}

WholeFile read_whole_file(const std::string &path, std::size_t longest, Compressed compressed)
{
    constexpr std::size_t piece = std::size_t{1} << 16U;
    ByteSource source(path, compressed);
    WholeFile file;
    std::size_t count = 1;
    for (std::size_t size = 0; count != 0 && size <= longest; size += count) {
        file.content.resize(std::min(size + piece, longest + 1));
        count = source.read(std::span(file.content).subspan(size));
        file.content.resize(size + count);
    }
    file.error = source.error();
    return file;
}

} // namespace l2fib
