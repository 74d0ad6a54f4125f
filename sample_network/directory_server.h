// A directory beside the sample hosts.
#pragma once

#include <filesystem>
#include <vector>

#include "sample_network/command.h"
#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample {

/// Its name in the network, for a hosts file: that of its domain.
inline constexpr const char* kDirectoryLine = "127.0.0.9\tsample.example\n";

/// Starts the directory of the domain sample.example, with its files at `folder`: containers and
/// organizational units, among them "Servers" with the sample hosts and "Computers" with 2,500
/// others. False when there is no such program.
bool start_directory(const HeldSignals& signals, const std::filesystem::path& folder,
                     const std::vector<SampleHost>& hosts, const Texts& environment);

}  // namespace tessarine::sample
