// What the library prints is of no interest here.
#include <cstdio>
#include <cstdlib>

// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    constexpr std::size_t buffer_size = std::size_t{1} << 20U;
    if (std::freopen("/dev/null", "w", stdout) == nullptr) {
        return 1;
    }
    std::setvbuf(stdout, nullptr, _IOFBF, buffer_size);
    setenv("TZ", "UTC0", 1); // without it, each time of day looks for the file of the machine's zone
    return 0;
}
