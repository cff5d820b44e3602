// The records of an inconsistency report.
#include "zel_l2fib/show.h"

uint32_t zel_l2fib_print_tlv(uint32_t /*level*/, uint8_t **cursor, uint64_t *remaining)
{
    if (cursor == nullptr || remaining == nullptr || (*cursor == nullptr && *remaining != 0)) {
        return L2FIB_SHOW_ERR_ARGS;
    }
    return 0;
}
