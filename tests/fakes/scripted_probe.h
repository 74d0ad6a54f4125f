// TCP connections whose outcome a test has written down.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "fakes/timeline.h"
#include "platform/tcp_probe.h"

namespace tessarine::fakes {

/// When, in milliseconds from the attempt, a host lets a connection be made and when it fails it;
/// below 0 for never.
struct ProbeAnswer {
    int connected_after = -1;
    int failed_after = -1;
};
inline constexpr ProbeAnswer kConnects{.connected_after = 20};
inline constexpr ProbeAnswer kRefuses{.failed_after = 20};
inline constexpr ProbeAnswer kSilent{};
inline constexpr ProbeAnswer kConnectsAndResets{.connected_after = 20, .failed_after = 1000};

/// A host that nobody has spoken of is an unknown name and fails at once.
class ScriptedProbe final : public TcpProbe {
  public:
    explicit ScriptedProbe(Timeline& timeline) : timeline_(timeline) {}

    void connect(const std::string& host, int port, Events events) override {
        attempts.push_back(host + ":" + std::to_string(port));
        const auto found = answers.find(host);
        const ProbeAnswer answer =
            found == answers.end() ? ProbeAnswer{.failed_after = 1} : found->second;
        add(answer.connected_after, events.connected);
        add(answer.failed_after, events.failed);
    }

    void close() override {
        for (const Timeline::Number number : waiting_) timeline_.forget(number);
        waiting_.clear();
        ++closed;
    }

    std::map<std::string, ProbeAnswer> answers;  ///< by host
    std::vector<std::string> attempts;           ///< "PC1:135"
    int closed = 0;

  private:
    void add(int after, const std::function<void()>& event) {
        if (after >= 0) waiting_.push_back(timeline_.at(timeline_.now() + after, event));
    }

    Timeline& timeline_;
    std::vector<Timeline::Number> waiting_;
};

}  // namespace tessarine::fakes
