// The rules that `l2fib-show check` goes by, for people.
#pragma once

namespace l2fib
{

void print_rules();

} // namespace l2fib
