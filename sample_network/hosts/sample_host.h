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
#include "sample_network/hosts/time_zone.h"

namespace tessarine::sample {

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

/// One host for each file `folder`/hosts/NAME.jsonl, by name. Raises a std::runtime_error when
/// there is none, too many, or one that can't be read.
std::vector<SampleHost> hosts_from_files(const std::filesystem::path& folder);

/// The shares that the logs of a host usually have in `count` records.
std::vector<LogShare> usual_logs(std::uint32_t count);

/// A host with made-up records and no address yet, its clock in London.
SampleHost generated_host(const std::string& name, const std::string& description,
                          std::vector<LogShare> logs, Instant newest,
                          Language language = Language::English);

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
