#include "faults/failing_memory.h"

#include <cstdlib>
#include <new>

namespace tessarine::faults {
namespace {

int allocations_left = 0;  // all on one thread
bool failed = false;

void* allocated(std::size_t size, std::size_t alignment) {
    if (allocations_left > 0 && --allocations_left == 0) {
        failed = true;
        throw std::bad_alloc();
    }
    size = (size + alignment) / alignment * alignment;
    if (void* start = std::aligned_alloc(alignment, size)) return start;
    throw std::bad_alloc();
}

}  // namespace

void fail_allocation(int number) {
    allocations_left = number;
    failed = false;
}

bool allocation_has_failed() {
    return failed;
}

}  // namespace tessarine::faults

void* operator new(std::size_t size) {
    return tessarine::faults::allocated(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return tessarine::faults::allocated(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* start) noexcept {
    std::free(start);
}

void operator delete(void* start, std::size_t) noexcept {
    std::free(start);
}

void operator delete(void* start, std::align_val_t) noexcept {
    std::free(start);
}

void operator delete(void* start, std::size_t, std::align_val_t) noexcept {
    std::free(start);
}
