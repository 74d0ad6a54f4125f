// What a fuzzed routine promises for any input. One that is broken ends the run like a crash.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/runtime_error.h"

namespace tessarine::fuzz {

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run where `kept` is false.
void hold(bool kept, const char* promise);

/// Each record is whole, reads as it was written, keeps the limits, and with a time becomes a line
/// of an event file. Gives their number.
std::size_t hold_for_records(std::string_view records);

/// Whether the action came to its end. It may fail, but in words.
template <typename Action>
bool succeeds(Action action) {
    try {
        action();
        return true;
    } catch (const RuntimeError& error) {
        hold(!error.description().empty(), "an error says what went wrong");
        return false;
    }
}

}  // namespace tessarine::fuzz
