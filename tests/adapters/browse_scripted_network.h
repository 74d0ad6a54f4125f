// A network on loopback for the browse list: a device whose answers a test makes up, and programs
// in the place of tessarine-browse.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "adapters/system_temporary_folder.h"

namespace tessarine {

/// Answers each message with datagrams, from 127.0.0.1.
class ScriptedDevice {
  public:
    using Answers = std::function<std::vector<std::string>(const std::string& message)>;

    explicit ScriptedDevice(Answers answers)
        : answers_(std::move(answers)), socket_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        bind(socket_, reinterpret_cast<sockaddr*>(&address), length);
        getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    ~ScriptedDevice() {
        shutdown(socket_, SHUT_RDWR);
        thread_.join();
        close(socket_);
    }

    int port() const { return port_; }

  private:
    void serve() {
        std::string buffer(65536, '\0');
        while (true) {
            sockaddr_in asker{};
            socklen_t size = sizeof asker;
            const auto length = recvfrom(socket_, buffer.data(), buffer.size(), 0,
                                         reinterpret_cast<sockaddr*>(&asker), &size);
            if (length <= 0) return;
            for (const std::string& text :
                 answers_(buffer.substr(0, static_cast<std::size_t>(length))))
                sendto(socket_, text.data(), text.size(), 0,
                       reinterpret_cast<const sockaddr*>(&asker), sizeof asker);
        }
    }

    Answers answers_;
    int socket_;
    int port_ = 0;
    std::thread thread_;
};

/// A shell script that is run in the place of tessarine-browse.
class ScriptedProgram {
  public:
    explicit ScriptedProgram(const std::string& script) {
        std::ofstream(path()) << "#!/bin/sh\n" << script << "\n";
        std::filesystem::permissions(path(), std::filesystem::perms::owner_all);
    }
    std::string path() const { return folder_.path() + "/browse"; }

  private:
    TemporaryFolder folder_;
};

}  // namespace tessarine
