// A TCP port of a host, and the connections to it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {

/// Raised when there is nothing more to do with a connection: the other end has closed it, it is
/// broken, or the server stops.
struct ConnectionEnded : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One accepted connection. Each call waits until it can go on or the server stops.
class Connection {
  public:
    virtual ~Connection() = default;

    /// At least one byte. Raises ConnectionEnded at the end, and when `patience` is over first.
    virtual std::size_t read_some(std::span<char> buffer, std::chrono::milliseconds patience) = 0;
    virtual void write(std::string_view bytes) = 0;
    /// Raises ConnectionEnded also when the client leaves meanwhile.
    virtual void pause(std::chrono::milliseconds duration) const = 0;
};

class SocketConnection final : public Connection {
  public:
    SocketConnection(FileDescriptor socket, int stop_descriptor);

    std::size_t read_some(std::span<char> buffer, std::chrono::milliseconds patience) override;
    void write(std::string_view bytes) override;
    void pause(std::chrono::milliseconds duration) const override;

  private:
    void wait_for(short events, std::chrono::milliseconds patience) const;

    FileDescriptor socket_;
    int stop_descriptor_;
};

/// Accepts connections until it is destroyed, each in a thread of its own.
class ConnectionServer {
  public:
    /// Runs a connection until it returns or raises ConnectionEnded. Called in several threads.
    using Handler = std::function<void(Connection&)>;

    /// Listens on an IPv4 address. Port 0 takes a free one. Raises a std::system_error.
    ConnectionServer(const std::string& address, std::uint16_t port, Handler handler);
    ConnectionServer(const ConnectionServer&) = delete;
    ConnectionServer& operator=(const ConnectionServer&) = delete;

    /// Breaks all connections and waits for their threads.
    ~ConnectionServer();

    std::uint16_t port() const { return port_; }

  private:
    void accept_connections();
    void serve(FileDescriptor socket);
    void connection_ended();

    Handler handler_;
    FileDescriptor listener_;
    FileDescriptor stop_;
    std::uint16_t port_ = 0;
    std::mutex mutex_;
    std::condition_variable ended_;
    int connections_ = 0;
    std::thread acceptor_;
};

}  // namespace tessarine::sample
