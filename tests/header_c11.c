/* The public headers are C11, and what they declare can be linked from C. */
#include "platform/platform.h"
#include "zel_l2fib/show.h"

int main(void)
{
    return zel_l2fib_data_size(L2FIB_OBJTYPE_AC, 3) == 164 && zel_l2fib_hal_print[0].object_print == 0 &&
                   status_text(0) != 0
               ? 0
               : 1;
}
