/* A client of the installed library, in C and in C++. */
#include <zel_l2fib/show.h>

#include <stdio.h>

int main(void)
{
    printf("%u\n", (unsigned)zel_l2fib_get_cardtype(0));
    return 0;
}
