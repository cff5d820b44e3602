#include "tests/support/memory.h"

#include <cstdlib>

static int allocations_until_failure = 0; // 0: none fails
static int live_allocations = 0;

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the names that the linker gives wrapped
// functions
extern "C" {
void *__real_malloc(size_t size);
void *__real_calloc(size_t count, size_t size);
void __real_free(void *memory);

static bool may_allocate()
{
    if (allocations_until_failure > 0 && --allocations_until_failure == 0) {
        return false;
    }
    ++live_allocations;
    return true;
}

void *__wrap_malloc(size_t size)
{
    return may_allocate() ? __real_malloc(size) : nullptr;
}

// A compiler makes one call of malloc and memset.
void *__wrap_calloc(size_t count, size_t size)
{
    return may_allocate() ? __real_calloc(count, size) : nullptr;
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
