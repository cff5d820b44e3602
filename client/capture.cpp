#include "client/capture.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace l2fib
{

Capture read_capture(const std::string &path)
{
    const auto close = [](std::FILE *file) {
        if (file != stdin) {
            std::fclose(file);
        }
    };
    const std::unique_ptr<std::FILE, decltype(close)> file(path == "-" ? stdin : std::fopen(path.c_str(), "rb"), close);
    if (!file) {
        return {{}, path + ": " + std::strerror(errno)};
    }
    Capture capture;
    std::array<std::uint8_t, 1 << 16> chunk;
    while (const std::size_t count = std::fread(chunk.data(), 1, chunk.size(), file.get())) {
        capture.bytes.insert(capture.bytes.end(), chunk.begin(), chunk.begin() + static_cast<std::ptrdiff_t>(count));
    }
    if (std::ferror(file.get()) != 0) {
        return {{}, path + ": " + std::strerror(errno)};
    }
    if (capture.bytes.empty()) {
        return {{}, path + ": no show data"};
    }
    return capture;
}

} // namespace l2fib
