#include "adapters/system/freed_memory.h"

#include <cstdlib>  // says which C library this is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tessarine {

void keep_freed_memory() {
#ifdef __GLIBC__
    constexpr int kMegabyte = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, 4 * kMegabyte);
    mallopt(M_TRIM_THRESHOLD, 16 * kMegabyte);
    mallopt(M_ARENA_MAX, 1);  // those of threads give back all the same
#endif
}

}  // namespace tessarine
