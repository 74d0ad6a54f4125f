// Two hosts of the older kind beside the sample hosts: Samba keeps a browse list for them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "sample_network/command.h"
#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample {

/// Starts Samba in `folder`, behind an interface of its own in this private network; it ends with
/// this process. The names are those of two of the `hosts`, in the group OLDOFFICE. Returns why
/// there is none: Samba or such a host is missing, or this process is not root. Empty on success.
std::string start_smb_hosts(const HeldSignals& signals, const std::filesystem::path& folder,
                            const std::vector<SampleHost>& hosts, const Texts& environment);

}  // namespace tessarine::sample
