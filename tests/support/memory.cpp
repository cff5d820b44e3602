#include "tests/support/memory.h"

#include <cstdlib>

static int allocations_until_failure = 0; // 0: none fails
static int live_allocations = 0;

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the names that the linker gives wrapped
// functions
extern "C" {
void *__real_malloc(size_t size);
void __real_free(void *memory);

void *__wrap_malloc(size_t size)
{
    if (allocations_until_failure > 0 && --allocations_until_failure == 0) {
        return nullptr;
    }
    ++live_allocations;
    return __real_malloc(size);
}

void __wrap_free(void *memory)
{
    live_allocations -= memory != nullptr ? 1 : 0;
    __real_free(memory);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace l2fib
{

FailingAllocation::FailingAllocation(int n)
{
    allocations_until_failure = n;
    live_allocations = 0;
}

FailingAllocation::~FailingAllocation()
{
    allocations_until_failure = 0;
}

int FailingAllocation::not_released() const
{
    return live_allocations;
}

} // namespace l2fib
