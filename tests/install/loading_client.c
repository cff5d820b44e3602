/* A client that loads the library when it runs. */
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>

int main(void)
{
    uint32_t (*get_cardtype)(uint32_t node_id);
    void *library = dlopen("libzel_l2fib.so.1", RTLD_NOW);
    void *symbol = library == NULL ? NULL : dlsym(library, "zel_l2fib_get_cardtype");
    if (symbol == NULL) {
        fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    *(void **)&get_cardtype = symbol;
    printf("%u\n", (unsigned)get_cardtype(0));
    return 0;
}
