// The browse list of today's networks: the one of SMB 1, by libsmbclient, and the computers that
// answer WS-Discovery, asked side by side and joined.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "adapters/browse/browsed_name.h"
#include "adapters/browse/smb_query.h"
#include "adapters/browse/ws_discovery.h"
#include "platform/browse_list.h"

namespace tessarine {

struct BrowseOptions {
    /// Called several times a second while the network is asked.
    std::function<void()> while_waiting;
    /// The program tessarine-browse; where it is empty, the one beside the running program.
    std::string program;
    DiscoveryPlace discovery;
};

/// Either of the two is enough; both silent is a failure. Entries are sorted by name, each name
/// once without regard to case. What WS-Discovery has told for the groups is good for the servers
/// of groups that are asked for soon after.
class NetworkBrowseList final : public BrowseList {
  public:
    explicit NetworkBrowseList(BrowseOptions options);

    BrowseAnswer groups() override;
    BrowseAnswer servers(const std::string& group) override;

  private:
    enum class Searches { ForDevicesToo, BySmbAlone };

    void ask(const std::vector<std::string>& question, Searches searches);
    void wait(SmbQuery& smb, WsDiscovery* discovery) const;
    BrowseAnswer joined(std::vector<ServerInfo> entries, const std::string& nothing) const;
    std::string reason() const;
    bool devices_are_fresh() const;

    BrowseOptions options_;
    // Of the last question.
    SmbAnswer smb_;
    bool smb_started_ = false;
    // Of the last search for devices.
    std::vector<BrowsedComputer> computers_;
    bool has_network_ = false;
    std::size_t devices_ = 0;
    std::chrono::steady_clock::time_point searched_;
};

}  // namespace tessarine
