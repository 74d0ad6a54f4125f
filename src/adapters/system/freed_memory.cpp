#include "adapters/system/freed_memory.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tessarine {

void keep_freed_memory() {
#ifdef __GLIBC__
    constexpr int kMegabyte = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, 4 * kMegabyte);
    mallopt(M_TRIM_THRESHOLD, 16 * kMegabyte);
#endif
}

}  // namespace tessarine
