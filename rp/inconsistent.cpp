// The inconsistency view: the RP's report on an object, then the hardware's.
#include "common/hal_print.h"
#include "common/objtype.h"

uint32_t zel_l2fib_print_internal_inconsistent(uint32_t objtype, uint32_t node_id, uint32_t /*direction*/,
                                               uint32_t /*view_flags*/, uint8_t * /*show_data*/, uint64_t /*size*/)
{
    using namespace l2fib;
    Output out;
    if (zel_l2fib_get_cardtype(node_id) == 0) {
        out.text("Unsupported card type: NONE");
        return 0;
    }
    out.line(1, "Platform object %s not handled", objtype_name(objtype));
    return 0;
}
