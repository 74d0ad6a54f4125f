#include "adapters/browse/network_browse_list.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "adapters/browse/browse_limits.h"
#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPollMilliseconds = 50;

constexpr const char* kNoGroup =
    "No group of the network is seen: no master browser of SMB 1 and no computer with network "
    "discovery (WS-Discovery) has answered. Switch network discovery on at the computers, or load "
    "the hosts from the directory or a list";
constexpr const char* kNoNetwork =
    "This machine has no network to search: check its connection and its address";
constexpr const char* kTellNothing =
    "Computers have answered the search, but none has told its group: let TCP port 5357 of theirs "
    "through the firewall (rule group Network Discovery)";
constexpr const char* kNoProgram =
    "tessarine-browse is missing beside the program, so SMB 1 was not asked";

std::string program_beside_this_one() {
    std::error_code failure;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", failure);
    return (own.parent_path() / "tessarine-browse").string();
}

std::uint32_t windows_error_of(int number) {
    switch (number) {
        case EACCES:
        case EPERM:
            return kErrorAccessDenied;
        case ECONNREFUSED:
        case ETIMEDOUT:
            return kErrorServerUnavailable;
        default:
            return kErrorNoBrowserServersFound;
    }
}

}  // namespace

NetworkBrowseList::NetworkBrowseList(BrowseOptions options) : options_(std::move(options)) {
    if (options_.program.empty()) options_.program = program_beside_this_one();
}

BrowseAnswer NetworkBrowseList::groups() {
    ask({"groups"}, Searches::ForDevicesToo);
    std::vector<ServerInfo> entries = smb_.entries;
    for (const BrowsedComputer& computer : computers_) entries.push_back({.name = computer.group});
    const bool silent = devices_ == 0;
    return joined(std::move(entries), !has_network_ ? kNoNetwork
                                      : silent      ? kNoGroup
                                                    : kTellNothing);
}

BrowseAnswer NetworkBrowseList::servers(const std::string& group) {
    ask({"servers", to_utf8(group)},
        devices_are_fresh() ? Searches::BySmbAlone : Searches::ForDevicesToo);
    const std::string& wanted = group.empty() ? smb_.own_group : group;
    std::vector<ServerInfo> entries = smb_.entries;
    for (const BrowsedComputer& computer : computers_)
        if (same_text(computer.group, wanted)) entries.push_back({.name = computer.name});
    return joined(std::move(entries),
                  "No computer of the group " + wanted + " has answered: see whether it is on");
}

void NetworkBrowseList::ask(const std::vector<std::string>& question, Searches searches) {
    SmbQuery smb(options_.program, question);
    std::optional<WsDiscovery> discovery;
    if (searches == Searches::ForDevicesToo) discovery.emplace(options_.discovery);
    wait(smb, discovery ? &*discovery : nullptr);
    smb_ = smb.answer();
    smb_started_ = smb.started();
    if (!discovery) return;
    computers_ = discovery->computers();
    has_network_ = discovery->sent();
    devices_ = discovery->devices();
    searched_ = Clock::now();
}

void NetworkBrowseList::wait(SmbQuery& smb, WsDiscovery* discovery) const {
    const Clock::time_point end = Clock::now() + browse_limits::kWhole;
    CURLM* const without_devices = discovery == nullptr ? curl_multi_init() : nullptr;
    CURLM* const polled = discovery == nullptr ? without_devices : discovery->requests();
    while (Clock::now() < end) {
        smb.step();
        if (discovery != nullptr) discovery->step();
        if (smb.done() && (discovery == nullptr || discovery->done())) break;
        std::array<curl_waitfd, 2> watched{};
        unsigned count = 0;
        if (!smb.done()) watched[count++] = {smb.output(), CURL_WAIT_POLLIN, 0};
        if (discovery != nullptr) watched[count++] = {discovery->socket(), CURL_WAIT_POLLIN, 0};
        curl_multi_poll(polled, watched.data(), count, kPollMilliseconds, nullptr);
        if (options_.while_waiting) options_.while_waiting();
    }
    if (without_devices != nullptr) curl_multi_cleanup(without_devices);
}

bool NetworkBrowseList::devices_are_fresh() const {
    return searched_ != Clock::time_point{} && Clock::now() - searched_ < browse_limits::kFresh;
}

BrowseAnswer NetworkBrowseList::joined(std::vector<ServerInfo> entries,
                                       const std::string& nothing) const {
    if (entries.empty())
        return {.error = windows_error_of(smb_.error), .words = nothing + reason()};
    std::stable_sort(entries.begin(), entries.end(), [](const auto& left, const auto& right) {
        return compare_text(left.name, right.name) < 0;
    });
    const auto end = std::unique(entries.begin(), entries.end(), [](const auto& l, const auto& r) {
        return same_text(l.name, r.name);
    });
    entries.erase(end, entries.end());
    return {.entries = std::move(entries)};
}

// What the browse list of SMB 1 has come to, where there is more to say than that it is silent.
std::string NetworkBrowseList::reason() const {
    if (!smb_started_) return std::string(" (") + kNoProgram + ")";
    if (smb_.error == 0 || smb_.error == ENOENT) return "";
    return " (SMB 1: " + from_utf8(std::generic_category().message(smb_.error)) + ")";
}

}  // namespace tessarine
