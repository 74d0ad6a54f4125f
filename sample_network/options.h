// The command line of the sample network.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "sample_network/hosts/event_time.h"

namespace tessarine::sample {

/// Where the hosts listen: in a private network, between the wrapper libraries, or at addresses
/// that are there already. `Any` is the first of these that the system allows.
enum class NetworkChoice { Any, Private, Wrapped, Present };

struct Options {
    bool help = false;
    bool quiet = false;
    bool shell = false;
    bool list_faults = false;
    bool faulty = false;
    NetworkChoice network = NetworkChoice::Any;
    std::optional<std::chrono::sys_days> today;
    std::uint32_t large_count = 100'000;
    std::filesystem::path events;
    std::filesystem::path desk;
    std::string keytab;
    bool tls = false;
    std::vector<std::string> only;
    std::vector<std::string> faults;
    std::optional<std::uint16_t> loopback_port;
    std::vector<std::string> command;
};

struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Raises a UsageError.
Options parse_options(const std::vector<std::string>& arguments);

extern const char* const kHelp;

}  // namespace tessarine::sample
