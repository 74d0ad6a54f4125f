// Entries of menus and buttons of toolbars.
#pragma once

#include <string>

namespace tessarine {

struct MenuEntry {
    std::string caption;
    bool checked = false;
    bool enabled = true;
    int icon = -1;  ///< number in the menu image list, counted from 0; -1 for none
};

}  // namespace tessarine
