#include "core/menus.h"

#include <algorithm>

namespace tessarine {
namespace {

const MenuTableRow* find_entry(std::string_view name) {
    const auto* found = std::find_if(kMenuTable.begin(), kMenuTable.end(),
                                     [&](const MenuTableRow& row) { return row.name == name; });
    return found == kMenuTable.end() ? nullptr : found;
}

constexpr std::array<std::string_view, 23> kIconOrder = {"exit",
                                                         "enumLan",
                                                         "loadpreaudited",
                                                         "enumads",
                                                         "addhostmanually",
                                                         "exporthostlist",
                                                         "loadfrmlist",
                                                         "runFullauditAllhost",
                                                         "runcustomforallhosts",
                                                         "settings",
                                                         "help",
                                                         "chkupdate",
                                                         "vieweventlogs",
                                                         "dellogs",
                                                         "fullaudit",
                                                         "custaudit",
                                                         "graphicalview",
                                                         "removehost",
                                                         "mslookup",
                                                         "lookupinquillard2",
                                                         "addtoignore",
                                                         "addtohighlightlist",
                                                         "addtohighlightlist3"};

}  // namespace

int ImageIndexOfKey(std::string_view image_key) {
    const auto* found = std::find(kMenuImages.begin(), kMenuImages.end(), image_key);
    return found == kMenuImages.end() ? 0 : static_cast<int>(found - kMenuImages.begin()) + 1;
}

void SetMenuIcon(MainForm& form, std::string_view image_key, std::string_view menu_name) {
    const MenuTableRow* row = find_entry(menu_name);
    if (row != nullptr) (form.*(row->entry)).icon = ImageIndexOfKey(image_key) - 1;
}

void set_menu_icons(MainForm& form) {
    for (const std::string_view name : kIconOrder)
        SetMenuIcon(form, find_entry(name)->icon_key, name);
}

}  // namespace tessarine
