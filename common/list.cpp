#include "common/list.h"

namespace l2fib
{

void List::separate()
{
    constexpr int wrap_column = 70;
    if (column_ > wrap_column) {
        out_.text(",\n");
        out_.blanks(continuation_);
        column_ = continuation_;
    } else if (items_ > 0) {
        text(", ");
    }
    ++items_;
}

} // namespace l2fib
