// The hosts of the sample network: who they are, what they answer, and how they fail.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "sample_network/hosts/generated_events.h"
#include "sample_network/hosts/moment.h"
#include "sample_network/hosts/sample_event.h"

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

/// Which of the ports answer, and how the management service does. A host that is down swallows
/// what is sent to it.
enum class HostState { Running, TlsOnly, PortMapperOnly, Down };

/// What a host puts into one answer at most: UTF-16 units of an envelope, counted twice, and items,
/// the first answer having an own limit.
struct HostLimits {
    std::size_t envelope = 512'000;
    std::size_t elements = 32'000;
    // Since 2008 hosts begin with one item, whatever the client would take.
    std::size_t first_elements = 1;
};

struct Fault;

/// What goes wrong at a host; `pull` and `wait` are the fault's own or chosen otherwise.
struct PlannedFault {
    const Fault* fault = nullptr;
    int pull = 0;
    std::chrono::milliseconds wait{0};
};

struct SampleHost {
    std::string name;
    std::string description;
    std::string address;
    HostState state = HostState::Running;
    /// In no domain: the host knows only the user of its own.
    bool workgroup = false;
    HostLimits limits;
    std::optional<PlannedFault> fault;
    /// None: the host denies access to it.
    std::optional<TimeZone> time_zone = TimeZone{};
    EventHistory history;
    /// Told of each step, from the threads of the connections.
    std::function<void(Moment)> on_step;
};

/// The built-in hosts, their newest records at `newest`; the large one has `large_count` records.
std::vector<SampleHost> built_in_hosts(Instant newest, std::uint32_t large_count);

/// One host for each file `folder`/hosts/NAME.jsonl, by name. Raises a std::runtime_error when
/// there is none, too many, or one that can't be read.
std::vector<SampleHost> hosts_from_files(const std::filesystem::path& folder);

/// An English host with `count` records in the usual proportions, and no address yet.
SampleHost usual_host(const std::string& name, const std::string& description, std::uint32_t count,
                      Instant newest);

/// Gives each host an address of its own, by its place in the list.
void give_addresses(std::vector<SampleHost>& hosts);

/// The one of that name, in any case. Raises a std::runtime_error for an unknown name.
SampleHost& host_called(std::vector<SampleHost>& hosts, const std::string& name);

/// Those of `hosts` that `names` has, in any case. Raises a std::runtime_error for an unknown name.
std::vector<SampleHost> only_hosts(std::vector<SampleHost> hosts,
                                   const std::vector<std::string>& names);

/// The text of a hosts file (hosts(5)) that gives each host its address.
std::string hosts_file_lines(const std::vector<SampleHost>& hosts);

}  // namespace tessarine::sample
