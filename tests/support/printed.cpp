#include "tests/support/printed.h"

#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace l2fib
{

std::string printed(const std::function<void()> &call)
{
    std::fflush(stdout);
    const int screen = dup(STDOUT_FILENO);
    const int file = memfd_create("printed", 0);
    dup2(file, STDOUT_FILENO);
    call();
    std::fflush(stdout);
    dup2(screen, STDOUT_FILENO);
    close(screen);
    std::string text(static_cast<std::size_t>(lseek(file, 0, SEEK_CUR)), '\0');
    if (pread(file, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size())) {
        throw std::runtime_error("printed text cannot be read back");
    }
    close(file);
    return text;
}

GuardedBytes::GuardedBytes(const std::vector<std::uint8_t> &bytes) : size_(bytes.size())
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t readable = (bytes.size() + page) / page * page;
    mapped_ = readable + page;
    mapping_ = mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapping_ == MAP_FAILED || mprotect(static_cast<std::uint8_t *>(mapping_) + readable, page, PROT_NONE) != 0) {
        throw std::runtime_error("no guarded memory");
    }
    data_ = static_cast<std::uint8_t *>(mapping_) + readable - bytes.size();
    std::copy(bytes.begin(), bytes.end(), data_);
}

GuardedBytes::~GuardedBytes()
{
    munmap(mapping_, mapped_);
}

std::ostream &operator<<(std::ostream &out, const Shown &shown)
{
    out << shown.text;
    return shown.status == 0 ? out : out << "\n[status 0x" << std::hex << shown.status << std::dec << ']';
}

Shown shown_detail(std::uint32_t objtype, std::uint32_t direction, const std::vector<std::uint8_t> &bytes)
{
    const GuardedBytes data(bytes);
    return shown(
        [&] { return zel_l2fib_print_internal(objtype, 0, direction, L2FIB_VIEW_DETAIL, data.data(), data.size()); });
}

std::string file_text(const std::string &path)
{
    std::ifstream file(std::string(L2FIB_SOURCE_DIR "/") + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

unsigned occurrences(const std::string &text, const std::string &what)
{
    unsigned count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace l2fib
