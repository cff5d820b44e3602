// The library may be called from any thread, by one at a time: here by several that take turns.
#include "examples/captures.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <mutex>
#include <regex>
#include <thread>

namespace l2fib
{

/// All views of the samples as each object, without the times, for which the clock goes on.
static std::string screens()
{
    std::string text;
    for (const SampleCapture &sample : sample_captures) {
        for (const std::uint32_t objtype :
             {L2FIB_OBJTYPE_AC, L2FIB_OBJTYPE_MPLS, L2FIB_OBJTYPE_NHOP, L2FIB_OBJTYPE_RSRC_MON, L2FIB_OBJTYPE_BRIDGE,
              L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_OBJTYPE_BRIDGE_MAC}) {
            for (const std::uint32_t view : {L2FIB_VIEW_DETAIL, L2FIB_VIEW_PRIVATE, L2FIB_VIEW_INCONSISTENT}) {
                std::vector<std::uint8_t> data = sample.make();
                text += printed(
                    [&] { zel_l2fib_print_internal(objtype, 0, L2FIB_INGRESS, view, data.data(), data.size()); });
            }
        }
    }
    return std::regex_replace(text, std::regex("sent at: [^\n]*"), "");
}

TEST(Threads, TakeTurns)
{
    const std::string alone = screens();
    std::mutex turn;
    const auto show = [&] {
        for (unsigned time = 0; time < 3; ++time) {
            const std::lock_guard its_turn(turn);
            EXPECT_TRUE(screens() == alone);
        }
    };
    std::thread threads[] = {std::thread(show), std::thread(show), std::thread(show)};
    for (std::thread &thread : threads) {
        thread.join();
    }
}

} // namespace l2fib
