// An application directory of the console, made ready for the sample network.
#pragma once

#include <filesystem>
#include <vector>

#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample {

/// Makes the folder where it is missing, and in it the host list hosts.txt, the alert list
/// alertpatterns.txt and the settings with the sample user and the mail server, each unless it is
/// there. Raises a std::runtime_error.
void prepare_desk(const std::filesystem::path& folder, const std::vector<SampleHost>& hosts);

}  // namespace tessarine::sample
