// A connection to the management port of a host: HTTP, authentication, seal and service.
#pragma once

#include "sample_network/connection_server.h"
#include "sample_network/sample_host.h"

namespace tessarine::sample {

/// Serves until the connection ends: Negotiate authentication first, then sealed messages alone.
void serve_wsman(Connection& connection, const SampleHost& host);

}  // namespace tessarine::sample
