#include "hosts/enumnet.h"

#include <utility>

#include "core/console_state.h"
#include "core/runtime_error.h"
#include "platform/browse_list.h"
#include "platform/form_windows.h"

namespace tessarine {

ServerNames ServerNames::without_elements(const std::string& reason) {
    ServerNames array({});
    array.reason_ = reason.empty() ? "Subscript out of range" : reason;
    return array;
}

int ServerNames::upper_bound() const {
    if (!reason_.empty()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange, reason_);
    return static_cast<int>(names_.size());
}

ServerNames GetServerNames(Console& console, const std::string& Domain, std::uint32_t ServerType) {
    BrowseList& network = console.platform.browse_list;
    BrowseAnswer answer =
        ServerType == kServerTypeDomainEnum ? network.groups() : network.servers(Domain);
    if (answer.error != 0) return ServerNames::without_elements(answer.words);
    std::vector<std::string> names;
    for (ServerInfo& entry : answer.entries) {
        names.push_back(std::move(entry.name));
        console.platform.form_windows.let_events_pass();
    }
    return ServerNames(std::move(names));
}

}  // namespace tessarine
