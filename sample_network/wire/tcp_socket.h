// Sockets of the simulated hosts.
#pragma once

#include <cstdint>
#include <string>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {

/// A socket that has the IPv4 address and port for itself, but doesn't listen: whoever connects is
/// refused. Port 0 takes a free one. Raises a std::system_error.
FileDescriptor bind_socket(const std::string& address, std::uint16_t port);
/// The same for datagrams.
FileDescriptor bind_datagram_socket(const std::string& address, std::uint16_t port);

/// The port that a bound socket has.
std::uint16_t port_of(const FileDescriptor& socket);

/// A non-blocking socket whose connection is under way or made; -1 inside when it was refused.
FileDescriptor begin_connect(const std::string& address, std::uint16_t port);

}  // namespace tessarine::sample
