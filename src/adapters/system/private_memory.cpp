#include "adapters/system/private_memory.h"

#include <sys/mman.h>

#include <new>

namespace tessarine {

// Pages of their own are aligned for everything.
void* PrivateMemory::do_allocate(std::size_t bytes, std::size_t) {
    void* start =
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (start == MAP_FAILED) throw std::bad_alloc();
#ifdef MADV_DONTDUMP
    // A system that refuses either still keeps the secret, only less well.
    (void)::madvise(start, bytes, MADV_DONTDUMP);
#endif
    (void)::mlock(start, bytes);
    return start;
}

void PrivateMemory::do_deallocate(void* start, std::size_t bytes, std::size_t) {
    ::munmap(start, bytes);
}

}  // namespace tessarine
