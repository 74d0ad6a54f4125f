#include "core/list/text_arena.h"

#include <algorithm>
#include <cstring>

namespace tessarine {
namespace {

// The first block serves a short list; the others are whole large pages.
constexpr std::size_t kSmallBlock = std::size_t{64} << 10;
constexpr std::size_t kLargePage = std::size_t{2} << 20;
constexpr std::size_t kLargeBlock = 4 * kLargePage;

std::size_t alignment_of(std::size_t block_size) {
    return block_size < kLargePage ? alignof(std::max_align_t) : kLargePage;
}

}  // namespace

TextArena::~TextArena() {
    for (const Block& block : blocks_)
        memory_->deallocate(block.start, block.size, alignment_of(block.size));
}

const char* TextArena::keep(std::string_view text) {
    if (blocks_.empty() || blocks_[open_].size - used_ < text.size()) open_block_for(text.size());
    char* kept = blocks_[open_].start + used_;
    if (!text.empty()) std::memcpy(kept, text.data(), text.size());
    used_ += text.size();
    return kept;
}

void TextArena::clear() {
    open_ = 0;
    used_ = 0;
}

void TextArena::open_block_for(std::size_t size) {
    std::size_t next = blocks_.empty() ? 0 : open_ + 1;
    while (next < blocks_.size() && blocks_[next].size < size) ++next;
    if (next == blocks_.size()) {
        const std::size_t usual = blocks_.empty() ? kSmallBlock : kLargeBlock;
        const std::size_t wanted =
            size <= usual ? usual : (size + kLargePage - 1) / kLargePage * kLargePage;
        blocks_.reserve(blocks_.size() + 1);  // the memory must not be lost after it was given
        auto* start = static_cast<char*>(memory_->allocate(wanted, alignment_of(wanted)));
        blocks_.push_back({start, wanted});
    }
    open_ = next;
    used_ = 0;
}

}  // namespace tessarine
