// Counts of the platform's objects and of the events that they have seen.
#include "zel_l2fib/show.h"

uint32_t zel_l2fib_platform_summary_hw_print_internal(uint32_t /*node_id*/, uint32_t /*hw_arg*/,
                                                      uint8_t * /*show_data*/, uint64_t /*size*/)
{
    return 0;
}

uint32_t zel_l2fib_platform_msg_counter_hw_print_internal(uint32_t /*node_id*/, uint32_t /*hw_arg*/,
                                                          uint8_t * /*show_data*/, uint64_t /*size*/)
{
    return 0;
}
