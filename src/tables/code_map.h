// Finding event codes fast.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

/// Numbers codes from 1 in the order in which they first come. They are compared as a whole without
/// regard to case.
class CodeMap {
  public:
    CodeMap();

    /// The number of a code; 0 for one that has not come.
    std::size_t find(std::string_view code) const { return slot_of(code, hash_of(code)).number; }
    /// The number of a code, which gets the next one when it is new.
    std::size_t number_of(std::string_view code);

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = 0;  // 0 for a free slot
    };

    std::uint32_t hash_of(std::string_view code) const;
    const Slot& slot_of(std::string_view code, std::uint32_t hash) const;
    void grow();

    std::vector<std::string> codes_;
    std::vector<Slot> slots_;   // a power of two of them, at most half of them in use
    std::uint32_t hash_start_;  // by chance, so that no host can choose codes that share a slot
};

}  // namespace tessarine
