// Form7: the host list from the groups of the Windows network.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Shows Form7.
void show_network(Console& console);

/// Form7 has come up: lists the groups.
void activate_network(Console& console);

/// Fills the form's list with the groups. A failure is shown in a message.
void CreatDomainList(Console& console);

/// The button: the hosts of the ticked groups take the place of the host list.
void enumerate_ticked_groups(Console& console);

/// Appends the servers of one group to the host list. A group that the network tells nothing of
/// adds none; any other failure is shown in a message.
void CreateHostList(Console& console, const std::string& strdom);

}  // namespace tessarine
