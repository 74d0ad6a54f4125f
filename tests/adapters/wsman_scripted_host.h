// A host on loopback whose answers a test makes up, for the event source's HTTP side.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "adapters/wsman/basics/host_address.h"

namespace tessarine {

/// What the host does with a request for which it has no answer.
enum class Last { Closes, IsSilent, Trickles, NeverStops };

class ScriptedHost {
  public:
    /// Gives the whole HTTP answer to a whole request.
    using Answer = std::function<std::optional<std::string>(const std::string& request)>;

    ScriptedHost(Answer answer, Last last)
        : answer_(std::move(answer)),
          last_(last),
          listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        bind(listener_, reinterpret_cast<sockaddr*>(&address), length);
        getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
        listen(listener_, 5);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }

    ScriptedHost(std::vector<std::string> answers, Last last)
        : ScriptedHost(
              [texts = std::move(answers), next = std::size_t{0}](const std::string&) mutable {
                  return next < texts.size() ? std::optional(texts[next++]) : std::nullopt;
              },
              last) {}

    ~ScriptedHost() {
        ended_ = true;
        shutdown(listener_, SHUT_RDWR);
        thread_.join();
        close(listener_);
    }

    HostAddress address() const { return {"127.0.0.1", port_}; }
    int connections() const { return connections_; }

  private:
    void serve() {
        for (int peer = -1; (peer = accept(listener_, nullptr, nullptr)) >= 0; close(peer)) {
            ++connections_;
            std::optional<std::string> text;
            do {
                const std::string request = take_request(peer);
                text = request.empty() ? std::nullopt : answer_(request);
                if (!text && !request.empty()) misbehave(peer);
            } while (text && send_text(peer, *text));
        }
    }

    static std::string take_request(int peer) {
        const std::string length_field = "Content-Length: ";
        std::string request;
        std::size_t body_length = 0;
        for (std::size_t end = std::string::npos;
             end == std::string::npos || request.size() < end + 4 + body_length;) {
            char c = 0;
            if (recv(peer, &c, 1, 0) != 1) return "";
            request += c;
            if (end != std::string::npos || !request.ends_with("\r\n\r\n")) continue;
            end = request.size() - 4;
            const std::size_t field = request.find(length_field);
            body_length = std::stoul("0" + request.substr(field + length_field.size(), 9));
        }
        return request;
    }

    static bool send_text(int peer, const std::string& text) {
        return send(peer, text.data(), text.size(), MSG_NOSIGNAL) ==
               static_cast<ssize_t>(text.size());
    }

    void misbehave(int peer) {
        const std::string begin = "HTTP/1.1 200 OK\r\nContent-Length: 99999999\r\n\r\n";
        const std::string step = last_ == Last::NeverStops ? std::string(65536, 'x') : "x";
        if (last_ == Last::Trickles || last_ == Last::NeverStops) send_text(peer, begin);
        while (!ended_ && last_ != Last::Closes) {
            if (last_ != Last::IsSilent && !send_text(peer, step)) return;
            if (last_ != Last::NeverStops)
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }

    Answer answer_;
    Last last_;
    int listener_;
    std::uint16_t port_ = 0;
    std::atomic<bool> ended_ = false;
    std::atomic<int> connections_ = 0;
    std::thread thread_;
};

}  // namespace tessarine
