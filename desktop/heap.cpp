#include "desktop/heap.h"

#include <cstdlib>  // names the library

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace corvanda {

#ifdef __GLIBC__

// Left to itself the library takes the largest block ever freed as the limit.
void KeepHeapSmall() {
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    mallopt(M_ARENA_MAX, 1);
}

void ReturnFreeMemory() {
    malloc_trim(0);
}

#else

void KeepHeapSmall() {}
void ReturnFreeMemory() {}

#endif

}  // namespace corvanda
