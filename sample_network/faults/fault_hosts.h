// Hosts with faults, as the command line asks for them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sample_network/faults/fault.h"
#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample {

/// Gives the host a fault, which takes the place of one that it has. `number` is how long the host
/// waits, in milliseconds, where the fault lets it wait, else the Pull at which the fault begins.
void plan_fault(SampleHost& host, const Fault& fault, std::optional<int> number = std::nullopt);

/// Plans what "HOST=FAULT" or "HOST=FAULT:N" says for one of `hosts`. Raises a std::runtime_error
/// when it is malformed or names what is not there.
void plan_fault(std::vector<SampleHost>& hosts, std::string_view text);

/// Adds one host for each fault, called FAULT- and its name in capitals.
void add_faulty_hosts(std::vector<SampleHost>& hosts, Instant newest);

/// One line for each fault, with its number where it has one.
std::string fault_list();

}  // namespace tessarine::sample
