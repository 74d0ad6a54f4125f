// Asks a host for the time zone of its clock.
#pragma once

#include "adapters/wsman/records/host_clock.h"
#include "adapters/wsman/soap/soap_channel.h"
#include "adapters/wsman/soap/soap_request.h"

namespace tessarine {

/// A clock that shows UTC where the host refuses to tell its zone, has none or tells nonsense.
/// Raises a RuntimeError when the channel is of no more use.
HostClock ask_host_clock(SoapChannel& channel, const SoapRequests& requests);

}  // namespace tessarine
