// A network whose groups and servers a test has written down.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/text.h"
#include "platform/browse_list.h"

namespace tessarine::fakes {

/// Without groups it is a network in which nobody answers, and a group without servers is one that
/// nobody knows, each with the number and the words of `failure`.
class ScriptedBrowseList final : public BrowseList {
  public:
    BrowseAnswer groups() override {
        asked.emplace_back("groups");
        BrowseAnswer answer;
        for (const auto& group : network) answer.entries.push_back({.name = group.first});
        return answer_or_failure(std::move(answer));
    }

    BrowseAnswer servers(const std::string& group) override {
        asked.push_back("servers of " + group);
        BrowseAnswer answer;
        for (const auto& [name, entries] : network)
            if (same_text(name, group.empty() ? own_group : group)) answer.entries = entries;
        return answer_or_failure(std::move(answer));
    }

    std::map<std::string, std::vector<ServerInfo>> network;  ///< servers by group
    std::string own_group = "WORKGROUP";
    BrowseAnswer failure{.error = kErrorNoBrowserServersFound, .words = "Nobody has answered"};
    std::vector<std::string> asked;
    /// An empty answer is a success.
    bool empty_is_success = false;

  private:
    BrowseAnswer answer_or_failure(BrowseAnswer answer) const {
        return answer.entries.empty() && !empty_is_success ? failure : answer;
    }
};

}  // namespace tessarine::fakes
