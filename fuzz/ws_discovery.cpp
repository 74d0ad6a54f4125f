// What answers a search for computers: a datagram and the metadata of a device, and what the
// program beside the console writes.
#include <string>

#include "adapters/browse/browse_limits.h"
#include "adapters/browse/discovery_message.h"
#include "adapters/browse/smb_query.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {
namespace {

void hold_for_name(const std::string& name) {
    hold(!name.empty() && name.size() <= browse_limits::kName, "a name has its length");
    hold(name.find_first_of("\r\n\t\\/:*?\"<>|") == std::string::npos, "a name is one of a host");
    hold(name.find('\0') == std::string::npos, "a name ends where it seems to");
}

void hold_for_computer(const std::optional<BrowsedComputer>& computer) {
    if (!computer) return;
    hold_for_name(computer->name);
    hold_for_name(computer->group);
}

void hold_for_matches(const DiscoveryAnswer& answer) {
    hold(answer.matches.size() <= browse_limits::kDevicesOfOneAddress, "a datagram tells of few");
    for (const DiscoveryMatch& match : answer.matches) {
        hold(!match.endpoint.empty() && match.endpoint.size() <= browse_limits::kAddress,
             "an endpoint has its length");
        const auto url = url_at(match.addresses, "10.0.0.7");
        if (!url) continue;
        hold(url->starts_with("http://10.0.0.7"), "a device speaks for itself alone");
        hold(url->size() == 15 || (*url)[15] == ':' || (*url)[15] == '/', "to the end of the name");
        hold(url->find_first_of(" \r\n") == std::string::npos, "a URL is one word");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = text_of(data, size);
    DiscoveryAnswer answer;
    if (succeeds([&] { answer = read_discovery_answer(bytes); })) hold_for_matches(answer);
    std::optional<BrowsedComputer> computer;
    if (succeeds([&] { computer = read_metadata(bytes); })) hold_for_computer(computer);
    hold_for_computer(browsed_computer(bytes));
    for (const ServerInfo& entry : read_smb_answer(std::string(bytes)).entries) {
        hold_for_name(entry.name);
        hold(entry.comment.size() <= browse_limits::kComment, "a comment has its length");
    }
    return 0;
}

}  // namespace tessarine::fuzz
