// A port that swallows what is sent to it, like that of a host that is down.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {

/// Whoever connects gets no answer, not even a refusal: the port's queue of connections is full,
/// and the system drops further ones.
class SilentPort {
  public:
    /// IPv4. Port 0 takes a free one. Raises a std::system_error.
    SilentPort(const std::string& address, std::uint16_t port);

    std::uint16_t port() const { return port_; }

  private:
    FileDescriptor listener_;
    std::uint16_t port_;
    std::vector<FileDescriptor> queued_;
};

}  // namespace tessarine::sample
