#include "sample_network/wire/connection_server.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include <array>
#include <iostream>

#include "sample_network/wire/tcp_socket.h"

namespace tessarine::sample {
namespace {

constexpr int kMostConnections = 64;
constexpr std::chrono::minutes kWritePatience{2};

enum class Waited { Ready, Stopped, TimedOut };

Waited wait_for_either(int descriptor, short events, int stop_descriptor, int milliseconds) {
    std::array<pollfd, 2> watched = {{{descriptor, events, 0}, {stop_descriptor, POLLIN, 0}}};
    int ready = 0;
    do ready = poll(watched.data(), watched.size(), milliseconds);
    while (ready < 0 && errno == EINTR);
    checked(ready, "poll");
    if (watched[1].revents != 0) return Waited::Stopped;
    return ready > 0 ? Waited::Ready : Waited::TimedOut;
}

}  // namespace

SocketConnection::SocketConnection(FileDescriptor socket, int stop_descriptor)
    : socket_(std::move(socket)), stop_descriptor_(stop_descriptor) {
    // Answers are small and waited for. Where it can't be set it is only slower.
    const int on = 1;
    setsockopt(socket_.get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

void SocketConnection::wait_for(short events, std::chrono::milliseconds patience) const {
    if (wait_for_either(socket_.get(), events, stop_descriptor_,
                        static_cast<int>(patience.count())) != Waited::Ready)
        throw ConnectionEnded("stopped or silent");
}

std::size_t SocketConnection::read_some(std::span<char> buffer,
                                        std::chrono::milliseconds patience) {
    wait_for(POLLIN, patience);
    const ssize_t count = recv(socket_.get(), buffer.data(), buffer.size(), 0);
    if (count <= 0) throw ConnectionEnded("closed by the client");
    return static_cast<std::size_t>(count);
}

void SocketConnection::write(std::string_view bytes) {
    while (!bytes.empty()) {
        wait_for(POLLOUT, kWritePatience);
        const ssize_t count =
            send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno != EAGAIN) throw ConnectionEnded("broken");
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void SocketConnection::pause(std::chrono::milliseconds duration) const {
    if (wait_for_either(socket_.get(), POLLRDHUP, stop_descriptor_,
                        static_cast<int>(duration.count())) != Waited::TimedOut)
        throw ConnectionEnded("stopped or left");
}

ConnectionServer::ConnectionServer(const std::string& address, std::uint16_t port, Handler handler)
    : handler_(std::move(handler)),
      listener_(bind_socket(address, port)),
      stop_(checked(eventfd(0, EFD_CLOEXEC), "eventfd")) {
    checked(listen(listener_.get(), SOMAXCONN), "listen");
    port_ = port_of(listener_);
    acceptor_ = std::thread([this] { accept_connections(); });
}

ConnectionServer::~ConnectionServer() {
    eventfd_write(stop_.get(), 1);
    acceptor_.join();
    std::unique_lock lock(mutex_);
    ended_.wait(lock, [this] { return connections_ == 0; });
}

void ConnectionServer::accept_connections() {
    while (wait_for_either(listener_.get(), POLLIN, stop_.get(), -1) == Waited::Ready) {
        FileDescriptor socket(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (socket.get() < 0) continue;
        const std::lock_guard lock(mutex_);
        if (connections_ == kMostConnections) continue;
        ++connections_;
        std::thread([this, taken = std::move(socket)]() mutable {
            serve(std::move(taken));
        }).detach();
    }
}

void ConnectionServer::serve(FileDescriptor socket) {
    try {
        SocketConnection connection(std::move(socket), stop_.get());
        handler_(connection);
    } catch (const std::exception& end) {
        // That a client leaves is no news.
        if (dynamic_cast<const ConnectionEnded*>(&end) == nullptr)
            std::cerr << "A connection was broken off: " << end.what() << '\n';
    }
    connection_ended();
}

void ConnectionServer::connection_ended() {
    const std::lock_guard lock(mutex_);
    --connections_;
    ended_.notify_all();
}

}  // namespace tessarine::sample
