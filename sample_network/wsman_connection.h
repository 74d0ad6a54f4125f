// A connection to the management port of a host: HTTP, authentication, seal and service.
#pragma once

#include <string>

#include "sample_network/hosts/sample_host.h"
#include "sample_network/wire/connection_server.h"

namespace tessarine::sample {

/// Serves until the connection ends: Negotiate authentication first, then messages alone. They are
/// sealed, unless the connection is TLS: there the sign-in must be tied to its `channel`.
void serve_wsman(Connection& connection, const SampleHost& host, const std::string& channel = {});

}  // namespace tessarine::sample
