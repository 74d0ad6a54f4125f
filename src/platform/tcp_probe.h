// One TCP connection attempt whose events arrive while the event loop runs.
#pragma once

#include <functional>
#include <string>

namespace tessarine {

class TcpProbe {
  public:
    virtual ~TcpProbe() = default;

    struct Events {
        std::function<void()> connected;  ///< the connection is made
        std::function<void()> failed;     ///< refused, reset, unknown name, no route
    };

    /// Starts to connect to `host` (8-bit code page) without waiting. A peer that closes a made
    /// connection in order raises no event; one that resets it raises `failed`.
    virtual void connect(const std::string& host, int port, Events events) = 0;

    /// Gives the connection up; no event follows.
    virtual void close() = 0;
};

}  // namespace tessarine
