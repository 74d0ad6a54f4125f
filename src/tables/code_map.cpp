#include "tables/code_map.h"

#include <random>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

constexpr std::size_t kFirstSlots = 1024;

}  // namespace

CodeMap::CodeMap() : slots_(kFirstSlots), hash_start_(std::random_device()()) {}

std::size_t CodeMap::number_of(std::string_view code) {
    const std::uint32_t hash = hash_of(code);
    const Slot& slot = slot_of(code, hash);
    if (slot.number != 0) return slot.number;
    codes_.emplace_back(code);
    const std::size_t number = codes_.size();
    slots_[static_cast<std::size_t>(&slot - slots_.data())] = {hash,
                                                               static_cast<std::uint32_t>(number)};
    if (number > slots_.size() / 2) grow();
    return number;
}

// FNV-1a over the folded letters.
std::uint32_t CodeMap::hash_of(std::string_view code) const {
    std::uint32_t hash = hash_start_;
    for (const char letter : code)
        hash = (hash ^ lower_case(static_cast<unsigned char>(letter))) * 16777619U;
    return hash;
}

// The slot that the code has, or the free one that it is to take.
const CodeMap::Slot& CodeMap::slot_of(std::string_view code, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].number != 0 &&
           (slots_[at].hash != hash || !same_text(codes_[slots_[at].number - 1], code)))
        at = (at + 1) & mask;
    return slots_[at];
}

void CodeMap::grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.number == 0) continue;
        std::size_t at = slot.hash & mask;
        while (slots_[at].number != 0) at = (at + 1) & mask;
        slots_[at] = slot;
    }
}

}  // namespace tessarine
