// One record of a simulated host's event logs, and the walk over all of them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "sample_network/hosts/event_time.h"

namespace tessarine::sample {

/// The properties of a Win32_NTLogEvent that the hosts deliver. Texts are UTF-8; an absent one is a
/// null value.
struct SampleEvent {
    std::string log_file;
    std::string type;
    std::string source_name;
    std::uint32_t event_code = 0;
    std::uint32_t record_number = 0;
    std::string computer_name;
    std::optional<std::string> user;
    std::optional<std::string> message;
    Instant time_generated;
    Instant time_written;
};

/// Gives the next record with each call, null after the last one. A record holds until the next
/// call.
using EventWalk = std::function<const SampleEvent*()>;

/// Begins a walk at the first record. Every walk gives the same records, and walks don't disturb
/// each other, also in several threads.
using EventHistory = std::function<EventWalk()>;

}  // namespace tessarine::sample
