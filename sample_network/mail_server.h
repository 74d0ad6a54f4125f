// A mail server beside the sample hosts.
#pragma once

#include <filesystem>

#include "sample_network/command.h"

namespace tessarine::sample {

/// Its names in the network, for a hosts file, and where it is for a console. Others than root may
/// not have the port of a mail server.
inline constexpr const char* kMailServerLine = "127.0.0.10\tmail.sample.example MAIL\n";
inline constexpr const char* kMailServer = "mail.sample.example:2525";

/// Starts a server that puts every mail into a Maildir at `folder`, each into a file of its own in
/// the folder new there, and ends with this process. False when there is no such program.
bool start_mail_server(const HeldSignals& signals, const std::filesystem::path& folder,
                       const Texts& environment);

}  // namespace tessarine::sample
