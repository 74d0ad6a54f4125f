#include "hosts/mod_network.h"

#include "core/console_state.h"
#include "core/icons.h"
#include "hosts/enumnet.h"
#include "platform/dialogs.h"

namespace tessarine {
namespace {

std::string words_of(std::uint32_t code) {
    switch (code) {
        case kErrorAccessDenied:
            return "Access Denied!";
        case 1326:
            // KEEP(net-error-1326-is-german): every language of the console has this text.
            return " Sie besitzen nicht die Berechtigungen daf\xFCr";
        case kErrorServerUnavailable:
            return "Server not accessible!";
        default:
            return "Error Nr. (" + std::to_string(code) + ") !";
    }
}

}  // namespace

// The network gives all entries at once, so that no answer says "more data" and one turn is enough.
ServerList GetServerList(Console& console, std::uint32_t ServerType) {
    BrowseList& network = console.platform.browse_list;
    BrowseAnswer answer =
        ServerType == kServerTypeDomainEnum ? network.groups() : network.servers("");
    if (answer.error != 0 && answer.error != kErrorMoreData) {
        NetErrorText(console, answer.error);
        return {};
    }
    return {.found = !answer.entries.empty(), .servers = std::move(answer.entries)};
}

std::string ServerNameBuffer(const std::string& Name) {
    const bool local = Name.empty() || Name.find("\\\\") != std::string::npos;
    return (local ? Name : "\\\\" + Name) + '\0';
}

std::string NetErrorText(Console& console, std::uint32_t Code, Quiet quiet) {
    if (quiet == Quiet::Yes) return words_of(Code);
    console.platform.dialogs.beep();
    console.platform.dialogs.message_box(words_of(Code), MessageStyle::Critical, "Net Error");
    return "";
}

void CreateHostList(Console& console) {
    console.Form1.mouse_pointer = kPointerHourglass;
    console.Form1.ListView1.clear();
    const ServerList list = GetServerList(console, kServerTypeAll);
    if (list.found)
        for (const ServerInfo& server : list.servers)
            console.Form1.ListView1.add_row(server.name, kNoIcon).add_sub_item("");
    console.Form1.mouse_pointer = kPointerDefault;
}

}  // namespace tessarine
