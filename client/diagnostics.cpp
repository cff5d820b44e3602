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
    write_message("l2fib-show: " + harmless_line(what) + '\n');
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

static int lost_output = 0;

void note_lost_output(int error)
{
    lost_output = error;
}

bool is_output_lost()
{
    if (lost_output == 0 && std::ferror(stdout) != 0) {
        lost_output = errno != 0 ? errno : EIO; // before something else changes it
    }
    return lost_output != 0;
}

bool output_arrived()
{
    if (!is_output_lost() && std::fflush(stdout) != 0) {
        lost_output = errno;
    }
    if (lost_output == 0) {
        return true;
    }
    complain(std::string("standard output: ") + std::strerror(lost_output));
    return false;
}

} // namespace l2fib
