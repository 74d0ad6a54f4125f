#include "analysis/code_tally.h"

#include <random>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

constexpr std::size_t kFirstSlots = 1024;

}  // namespace

CodeTally::CodeTally() : slots_(kFirstSlots), hash_start_(std::random_device()()) {}

void CodeTally::count(std::string_view code, std::string_view source, int icon) {
    const std::uint32_t hash = hash_of(code);
    Slot& slot = slot_of(code, hash);
    if (slot.code != 0) {
        ++codes_[slot.code - 1].instances;
        return;
    }
    codes_.push_back({std::string(code), std::string(source), icon, 1 - everywhere_});
    slot = {hash, static_cast<std::uint32_t>(codes_.size())};
    if (codes_.size() > slots_.size() / 2) grow();
}

std::vector<CodeCount> CodeTally::codes() const {
    std::vector<CodeCount> counted = codes_;
    for (CodeCount& each : counted) each.instances += everywhere_;
    return counted;
}

// FNV-1a over the folded letters.
std::uint32_t CodeTally::hash_of(std::string_view code) const {
    std::uint32_t hash = hash_start_;
    for (const char letter : code)
        hash = (hash ^ lower_case(static_cast<unsigned char>(letter))) * 16777619U;
    return hash;
}

// The slot that the code has, or the free one that it is to take.
CodeTally::Slot& CodeTally::slot_of(std::string_view code, std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].code != 0 &&
           (slots_[at].hash != hash || !same_text(codes_[slots_[at].code - 1].code, code)))
        at = (at + 1) & mask;
    return slots_[at];
}

void CodeTally::grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.code == 0) continue;
        std::size_t at = slot.hash & mask;
        while (slots_[at].code != 0) at = (at + 1) & mask;
        slots_[at] = slot;
    }
}

}  // namespace tessarine
