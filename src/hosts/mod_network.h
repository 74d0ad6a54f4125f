// The second way to the browse list: fuller records, and errors in words.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/browse_list.h"

namespace tessarine {

struct Console;

struct ServerList {
    bool found = false;  ///< whether there is at least one
    std::vector<ServerInfo> servers;
};

/// The servers of this machine's own group. A failure is shown in a message, and gives none.
ServerList GetServerList(Console& console, std::uint32_t ServerType);

/// The name with a NUL behind it, and with "\\" in front unless it is empty or has one somewhere.
/// The empty name stands for the local machine.
std::string ServerNameBuffer(const std::string& Name);

enum class Quiet { No, Yes };

/// The words for an error number of Windows. Without Quiet::Yes they are shown in a message, with a
/// beep, and the result is empty.
std::string NetErrorText(Console& console, std::uint32_t Code, Quiet quiet = Quiet::No);

/// Replaces the host list by all servers of this machine's own group.
void CreateHostList(Console& console);

}  // namespace tessarine
