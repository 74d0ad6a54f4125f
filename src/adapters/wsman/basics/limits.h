// What a host may make the console hold, do or wait for, all in one place.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "xml/xml_limits.h"

namespace tessarine::limits {

/// Bytes of all header lines of one HTTP answer, interim answers and trailers included.
inline constexpr std::size_t kAnswerHeaders = std::size_t{64} * 1024;
/// Bytes of one HTTP body. Hosts keep to kEnvelopeSize, which some count in UTF-16 units.
inline constexpr std::size_t kAnswerBody = std::size_t{4} * 1024 * 1024;
/// Legs of one sign-in; NTLM takes two, Kerberos one.
inline constexpr int kSignInLegs = 6;

/// Bytes of the text of one property or control element.
inline constexpr std::size_t kElementText = std::size_t{1024} * 1024;
/// Bytes of a host's own words in an error text.
inline constexpr std::size_t kFaultText = 500;

/// What a request asks of the host: the largest answer, and the most records in it.
inline constexpr int kEnvelopeSize = 512000;
inline constexpr int kElementsPerPull = 1000;
/// Pulls in a row that bring no record. Their number in all is not limited: logs can be large.
inline constexpr int kEmptyPulls = 100;
/// Pulls for the one item that tells a host's time zone.
inline constexpr int kTimeZonePulls = 5;
/// What a query gives: Windows keeps 4 GB of a log at the most, and a host has three large ones. In
/// records, which have 256 bytes there at least; and in bytes of the temporary file, where texts
/// are written out, and which also never takes more than half of what is free.
inline constexpr std::uint64_t kQueryRecords = 3 * (std::uint64_t{4} << 30) / 256;
inline constexpr std::uint64_t kQuerySize = (std::uint64_t{4} << 30) * 3 * 2;

inline constexpr std::chrono::seconds kConnect{10};
/// How long after its own time limit for an operation a host may still be silent.
inline constexpr std::chrono::seconds kSilenceAfterTimeout{5};
/// Less than this is silence too, in bytes a second.
inline constexpr long kSlowestTransfer = 1000;
/// One whole exchange, however fast it trickles.
inline constexpr std::chrono::seconds kWholeExchange{600};
/// All Pulls of one query. Hosts render a million records in about a quarter of an hour.
inline constexpr std::chrono::hours kQuery{12};
/// Giving back an enumeration that is of no more use.
inline constexpr std::chrono::seconds kRelease{3};

}  // namespace tessarine::limits
