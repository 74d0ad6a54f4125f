// Memory for secrets.
#pragma once

#include <memory_resource>

namespace tessarine {

/// Whole pages that core files leave out and, where the system allows it, the swap too.
class PrivateMemory final : public std::pmr::memory_resource {
  private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void* start, std::size_t bytes, std::size_t alignment) override;
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }
};

}  // namespace tessarine
