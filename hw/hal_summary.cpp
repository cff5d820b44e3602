// The HAL's shared memory.
#include "zel_l2fib/show.h"

uint32_t zel_l2fib_trident_print_summary(uint32_t /*hw_arg*/, uint8_t * /*show_data*/, uint64_t /*size*/)
{
    return 0;
}
