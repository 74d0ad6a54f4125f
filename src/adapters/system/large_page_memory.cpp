#include "adapters/system/large_page_memory.h"

#include <sys/mman.h>

#include <algorithm>
#include <new>

namespace tessarine {
namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;

std::align_val_t alignment_of(std::size_t bytes, std::size_t wanted) {
    return std::align_val_t{bytes < kLargePage ? wanted : std::max(wanted, kLargePage)};
}

void prefer_large_pages([[maybe_unused]] void* start, [[maybe_unused]] std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    // A system that refuses gives small pages, which serve as well, only slower.
    (void)::madvise(start, bytes / kLargePage * kLargePage, MADV_HUGEPAGE);
#endif
}

}  // namespace

void* LargePageMemory::do_allocate(std::size_t bytes, std::size_t alignment) {
    void* start = ::operator new(bytes, alignment_of(bytes, alignment));
    if (bytes >= kLargePage) prefer_large_pages(start, bytes);
    return start;
}

void LargePageMemory::do_deallocate(void* start, std::size_t bytes, std::size_t alignment) {
    ::operator delete(start, alignment_of(bytes, alignment));
}

}  // namespace tessarine
