// The hosts of the sample network: who they are, what they answer, and how they fail.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "sample_network/generated_events.h"
#include "sample_network/sample_event.h"
#include "sample_network/soap_fault.h"

namespace tessarine::sample {

/// When a clock changes: the `week`-th `day_of_week` (0 is Sunday, week 5 is the last one) of
/// `month`, at `hour` of the time before the change. Month 0: never.
struct ClockChange {
    int month = 0;
    int week = 0;
    int day_of_week = 0;
    int hour = 0;
};

/// As a Win32_TimeZone tells it: local time is UTC plus `bias` minutes, and in the daylight time
/// minus `daylight_bias` minutes more.
struct TimeZone {
    std::string name = "UTC";
    int bias = 0;
    int daylight_bias = 0;
    ClockChange to_standard;
    ClockChange to_daylight;
};

/// Which of the ports answer. A host that is down swallows what is sent to it.
enum class HostState { Running, PortMapperOnly, Down };

/// What goes wrong at a host, beyond its state.
struct Faults {
    std::optional<FaultKind> at_enumerate;
};

struct SampleHost {
    std::string name;
    std::string description;
    std::string address;
    HostState state = HostState::Running;
    Faults faults;
    /// None: the host denies access to it.
    std::optional<TimeZone> time_zone = TimeZone{};
    EventHistory history;
};

/// The built-in hosts, their newest records at `newest`; the large one has `large_count` records.
std::vector<SampleHost> built_in_hosts(Instant newest, std::uint32_t large_count);

/// One host for each file `folder`/hosts/NAME.jsonl, by name. Raises a std::runtime_error when
/// there is none, too many, or one that can't be read.
std::vector<SampleHost> hosts_from_files(const std::filesystem::path& folder);

/// Those of `hosts` that `names` has, in any case. Raises a std::runtime_error for an unknown name.
std::vector<SampleHost> only_hosts(const std::vector<SampleHost>& hosts,
                                   const std::vector<std::string>& names);

/// The text of a hosts file (hosts(5)) that gives each host its address.
std::string hosts_file_lines(const std::vector<SampleHost>& hosts);

}  // namespace tessarine::sample
