// Memory for tables of hundreds of megabytes.
#pragma once

#include <memory_resource>

namespace tessarine {

/// Asks for large pages where the system has them: the first touch of fresh memory in small pages
/// costs several times what reading a file costs. Anything below one large page is plain memory.
class LargePageMemory final : public std::pmr::memory_resource {
  private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void* start, std::size_t bytes, std::size_t alignment) override;
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }
};

}  // namespace tessarine
