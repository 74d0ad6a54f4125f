// The envelopes that a host's answers travel in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "sample_network/wire/enumeration.h"
#include "sample_network/wire/soap_fault.h"

namespace tessarine::sample {

/// More than the UTF-16 units of any answer without its items.
inline constexpr std::size_t kEnvelopeReserve = 2'500;

/// "uuid:" and a random number in capitals (RFC 4122).
std::string new_uuid();

/// An empty `context` says that the enumeration has ended.
std::string enumerate_answer(std::string_view relates_to, std::string_view context,
                             const Page& page);
std::string pull_answer(std::string_view relates_to, std::string_view context, const Page& page);
std::string release_answer(std::string_view relates_to);

std::string fault_answer(std::string_view relates_to, FaultKind kind, std::string_view machine);

}  // namespace tessarine::sample
