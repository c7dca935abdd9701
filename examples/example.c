/* A first program against veks: prints the library's version record and
 * what a few of its functions compute. */
#include <stdio.h>

#include "veks.h"

int main(void) {
    const VekLibraryVersion* v = veksGetLibVersion();
    printf("%s %s, built %s\n", v->name, v->version, v->buildDate);

    T32f* buf = veksMalloc_32f(1024);
    printf("veksMalloc_32f(1024) -> %s block, 64-byte aligned: %s\n", buf ? "a" : "no",
           buf && ((unsigned long)buf % 64) == 0 ? "yes" : "no");
    veksFree(buf);
    printf("veksMalloc_32f(0) -> %p\n", (void*)veksMalloc_32f(0));
    return 0;
}
