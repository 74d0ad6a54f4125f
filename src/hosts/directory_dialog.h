// frmADS: the host list filled from the directory of a domain.
#pragma once

namespace tessarine {

struct Console;

/// Shows frmADS.
void show_directory(Console& console);

/// Adds the containers and units at the top of the domain to the names in Combo1.
void list_containers(Console& console);

/// Lists the objects in the container or unit whose name stands in Combo1.
void list_objects(Console& console);

/// Adds the listed objects to the host list, in upper case. Raises "Overflow" for more than 32,767
/// of them.
void add_listed_objects(Console& console);

}  // namespace tessarine
