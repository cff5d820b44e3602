#include "client/diagnostics.h"

#include "client/harmless_text.h"
#include "client/screen.h"
#include "platform/platform.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace l2fib
{

ExitStatus complain(std::string_view what)
{
    end_screen_line();
    std::fprintf(stderr, "l2fib-show: %s\n", harmless_line(what).c_str());
    return unusable;
}

const char *text_of_status(std::uint32_t status)
{
    const char *text = status_text(status);
    return text == nullptr ? "(null)" : text;
}

ExitStatus report_status(std::uint32_t status, std::string_view place)
{
    std::array<char, sizeof "0xffffffff"> code{};
    std::snprintf(code.data(), code.size(), "0x%08x", status);
    complain(std::string(place) + "status " + code.data() + ": " + text_of_status(status));
    return view_failed;
}

std::string spelled_out(std::string_view text)
{
    constexpr std::size_t longest = 32;
    std::string result = "'";
    for (const char c : text.substr(0, longest)) {
        if (c >= ' ' && c <= '~') {
            result += c;
        } else {
            std::array<char, sizeof "\\xff"> code{};
            std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned char>(c));
            result += code.data();
        }
    }
    return result + (text.size() > longest ? "...'" : "'");
}

bool output_arrived()
{
    const int earlier = errno; // of a write that has failed already, if one has
    errno = 0;
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return true;
    }
    complain(std::string("standard output: ") + std::strerror(errno != 0 ? errno : earlier));
    return false;
}

} // namespace l2fib
