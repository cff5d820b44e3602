// Standard output, held back until it is known whether it is wanted.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>
#include <utility>

namespace l2fib
{

class HeldOutput
{
public:
    HeldOutput() : stream_(open_memstream(&text_, &size_))
    {
        if (stream_ == nullptr) {
            throw std::bad_alloc();
        }
    }
    ~HeldOutput()
    {
        std::fclose(stream_);
        std::free(text_);
    }
    HeldOutput(const HeldOutput &) = delete;
    HeldOutput &operator=(const HeldOutput &) = delete;

    /// What a call prints; it stands until the next call. (glibc lets stdout be another stream for a while.)
    template <class Call>
    std::string_view text_of(const Call &call)
    {
        std::rewind(stream_);
        std::swap(stdout, stream_);
        call();
        std::swap(stdout, stream_);
        std::fflush(stream_);
        return {text_, size_};
    }

private:
    char *text_ = nullptr;
    std::size_t size_ = 0;
    std::FILE *stream_;
};

} // namespace l2fib
