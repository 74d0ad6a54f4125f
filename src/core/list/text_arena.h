// Memory for the texts of a list, taken in large blocks and kept from one filling to the next.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace tessarine {

class TextArena {
  public:
    explicit TextArena(std::pmr::memory_resource* memory = std::pmr::get_default_resource())
        : memory_(memory) {}
    ~TextArena();
    TextArena(const TextArena&) = delete;
    TextArena& operator=(const TextArena&) = delete;

    /// Keeps a copy of `text` until `clear`; returns where it stands.
    const char* keep(std::string_view text);

    /// Forgets all texts. The blocks stay for the next filling: touching fresh memory costs several
    /// times what reading a file costs.
    void clear();

  private:
    struct Block {
        char* start;
        std::size_t size;
    };

    void open_block_for(std::size_t size);

    std::pmr::memory_resource* memory_;
    std::vector<Block> blocks_;
    std::size_t open_ = 0;  // number of the block in use; the ones after it are empty
    std::size_t used_ = 0;  // bytes in use of the open block
};

}  // namespace tessarine
