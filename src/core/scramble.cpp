#include "core/scramble.h"

#include <bit>
#include <limits>

#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::uint32_t kStateBits = 24;
constexpr std::uint32_t kStateMask = (1u << kStateBits) - 1;

// The top eight bits of a draw; exact, since a draw has 24 bits.
unsigned char byte_of(float draw) {
    return static_cast<unsigned char>(draw * 256.0F);
}

double key_sum(PseudoRandom& random, std::string_view key) {
    std::int64_t sum = 0;
    std::uint32_t position = 0;
    for (const char character : key) {
        ++position;
        const auto code = static_cast<unsigned char>(character);
        sum += code ^ byte_of(random.draw()) ^ (position % 256);
        if (sum > std::numeric_limits<std::int32_t>::max())
            throw RuntimeError(ErrorNumber::Overflow, "Overflow");
    }
    return static_cast<double>(sum);
}

}  // namespace

float PseudoRandom::reset() {
    const auto bits = std::bit_cast<std::uint32_t>(-1.0F);
    state_ = (bits + (bits >> 24)) & kStateMask;
    return draw();
}

void PseudoRandom::seed(double number) {
    const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32);
    const std::uint32_t mixed = (high & 0xFFFF) ^ (high >> 16);
    state_ = (mixed << 8) | (state_ & 0xFF);
}

float PseudoRandom::draw() {
    state_ = (state_ * 1140671485u + 12820163u) & kStateMask;
    return static_cast<float>(state_) / static_cast<float>(kStateMask + 1);
}

std::string Scramble(std::string_view text, std::string_view key) {
    PseudoRandom random;
    random.reset();
    random.seed(static_cast<double>(key.size()));
    const double sum = key_sum(random, key);
    random.reset();
    random.seed(sum);
    std::string result(text);
    for (char& character : result)
        character =
            static_cast<char>(static_cast<unsigned char>(character) ^ byte_of(random.draw()));
    return result;
}

}  // namespace tessarine
