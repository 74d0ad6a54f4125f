// A network for systems that refuse a private one: libraries that stand between the programs and
// the system's sockets and names.
#pragma once

#include <optional>
#include <string>

#include "sample_network/command.h"

namespace tessarine::sample {

/// Runs `arguments`, a call of this program, with libsocket_wrapper and libnss_wrapper loaded into
/// it and all it starts, so that 127.0.0.0/8 and the names in `hosts` are theirs. Returns the exit
/// status; nothing when the libraries are missing.
std::optional<int> run_in_wrapped_network(const HeldSignals& signals, const Texts& arguments,
                                          const std::string& hosts);

}  // namespace tessarine::sample
