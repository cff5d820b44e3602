// Memory that runs out on demand. The linker leads the library's calls of the C allocator here: those
// of common/working_copies.cpp, which is compiled apart in every build.
#pragma once

namespace l2fib
{

/// While it lives, the library's n-th allocation fails.
class FailingAllocation
{
public:
    explicit FailingAllocation(int n);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;

    /// Allocations that the library has made and not released since.
    [[nodiscard]] int not_released() const;
};

} // namespace l2fib
