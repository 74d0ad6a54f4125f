// Answers of WS-Enumeration, with what WS-Management (DSP0226) and Windows add to them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/wsman/soap/item_reader.h"

namespace tessarine {

/// Numbers of faults (WSManFault, attribute Code) that the console treats in a way of their own.
inline constexpr std::uint32_t kFaultTimedOut = 2150858793;
inline constexpr std::uint32_t kFaultInvalidContext = 2150858779;

struct SoapFault {
    /// Windows' number; 0 when the fault has none.
    std::uint32_t number = 0;
    /// The subcode without its prefix, such as "AccessDenied"; empty when the fault has none.
    std::string code;
    /// The host's words in one line, console's code page, cut to limits::kFaultText.
    std::string text;

    bool is(std::uint32_t other_number, std::string_view other_code) const {
        return number == other_number || code == other_code;
    }
};

struct SoapAnswer {
    /// The message identifier of the request; empty when the answer names none.
    std::string relates_to;
    /// For the next Pull; empty when there is none.
    std::string context;
    bool ends_sequence = false;
    std::size_t item_count = 0;
    std::optional<SoapFault> fault;
};

/// Reads an envelope (UTF-8, scrubbed) and what it holds between the tags of its Items by `items`.
/// Raises a RuntimeError for what is neither an answer to Enumerate or Pull nor a fault.
SoapAnswer read_soap_answer(std::string_view envelope, ItemReader& items);

}  // namespace tessarine
