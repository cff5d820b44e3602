#include "common/list.h"

namespace l2fib
{

void List::wrap()
{
    out_.text(",\n");
    out_.blanks(continuation_);
    column_ = continuation_;
}

} // namespace l2fib
