// The menus, context menus and the toolbar as tables; the windows are built from them.
#pragma once

#include <array>
#include <string_view>

#include "core/forms/main_form.h"

namespace tessarine {

/// One entry of a menu. `icon_key` names its picture in the menu image list, empty for none; an
/// entry without a control of its own is a separator line.
struct MenuTableRow {
    std::string_view menu;
    std::string_view name;
    MenuEntry MainForm::*entry = nullptr;
    std::string_view icon_key = {};
};

/// Names of the menus of the bar, in their order.
inline constexpr std::array<std::string_view, 5> kMenuBar = {"file", "hosts", "run", "prefs",
                                                             "Help"};

inline constexpr std::array kMenuTable = {
    MenuTableRow{"file", "exit", &MainForm::exit, "EXIT"},
    MenuTableRow{"hosts", "enumLan", &MainForm::enumLan, "ELAN"},
    MenuTableRow{"hosts", "enumads", &MainForm::enumads, "ADS"},
    MenuTableRow{"hosts", "loadfrmlist", &MainForm::loadfrmlist, "HOSTLIST"},
    MenuTableRow{"hosts", "loadpreaudited", &MainForm::loadpreaudited, "PREAUDITED"},
    MenuTableRow{"hosts", "addhostmanually", &MainForm::addhostmanually, "MANADD"},
    MenuTableRow{"hosts", "exporthostlist", &MainForm::exporthostlist, "EXPFILE"},
    MenuTableRow{"run", "runFullauditAllhost", &MainForm::runFullauditAllhost, "FULLAUDIT"},
    MenuTableRow{"run", "runcustomforallhosts", &MainForm::runcustomforallhosts, "CUSTAUDIT"},
    MenuTableRow{"prefs", "highlightpatt", &MainForm::highlightpatt},
    MenuTableRow{"prefs", "hideignore", &MainForm::hideignore},
    MenuTableRow{"prefs", "shogrid", &MainForm::shogrid},
    MenuTableRow{"prefs", "settings", &MainForm::settings, "SETTINGS"},
    MenuTableRow{"Help", "help", &MainForm::help, "HELP"},
    MenuTableRow{"Help", "chkupdate", &MainForm::chkupdate, "LOOKUP"},
    MenuTableRow{"Help", "About", &MainForm::About},
    MenuTableRow{"MyMenu", "vieweventlogs", &MainForm::vieweventlogs, "VIEWLOG"},
    MenuTableRow{"MyMenu", "dellogs", &MainForm::dellogs, "DELETELOG"},
    MenuTableRow{"MyMenu", "fullaudit", &MainForm::fullaudit, "FULLAUDIT"},
    MenuTableRow{"MyMenu", "custaudit", &MainForm::custaudit, "CUSTAUDIT"},
    MenuTableRow{"MyMenu", "graphicalview", &MainForm::graphicalview, "VIEWGRAPH"},
    MenuTableRow{"MyMenu", "removehost", &MainForm::removehost, "REMOVEHOST"},
    MenuTableRow{"popmeup2", "addtohighlightlist", &MainForm::addtohighlightlist, "ADDTOHIGHLIGHT"},
    MenuTableRow{"popmeup2", "addtoignore", &MainForm::addtoignore, "ADDTOIGNORE"},
    MenuTableRow{"popmeup2", "-"},
    MenuTableRow{"popmeup2", "lookingoogle", &MainForm::lookingoogle},
    MenuTableRow{"popmeup2", "mslookup", &MainForm::mslookup, "LOOKUP"},
    MenuTableRow{"popmeup3", "addtohighlightlist3", &MainForm::addtohighlightlist3,
                 "ADDTOHIGHLIGHT"},
    MenuTableRow{"popmeup3", "-"},
    MenuTableRow{"popmeup3", "lookupinquillard2", &MainForm::lookupinquillard2, "LOOKUP"},
};

/// One button of Toolbar1. `raises` is the menu entry whose action it starts; a button without one
/// of its own is a separator. `print` is the page export, which has no menu entry.
struct ToolbarButton {
    int index;
    std::string_view tool_tip = {};
    std::string_view raises = {};
};

inline constexpr std::array kToolbar = {
    ToolbarButton{1, "Enumerate network", "enumLan"},
    ToolbarButton{2, "Load hosts from list", "loadfrmlist"},
    ToolbarButton{3, "Load pre-audited hosts", "loadpreaudited"},
    ToolbarButton{4, "Add hosts manually", "addhostmanually"},
    ToolbarButton{5, "Export to host text file", "exporthostlist"},
    ToolbarButton{6},
    ToolbarButton{7, "Run full audit for all listed hosts", "runFullauditAllhost"},
    ToolbarButton{8, "Run custom audit for all listed hosts", "runcustomforallhosts"},
    ToolbarButton{9},
    ToolbarButton{10, "Highlight alert patterns", "highlightpatt"},
    ToolbarButton{11, "Show grid lines", "shogrid"},
    ToolbarButton{12, "Hide ignored events", "hideignore"},
    ToolbarButton{13, "Settings", "settings"},
    ToolbarButton{14},
    ToolbarButton{15, "Export to Html and Print current page", "print"},
    ToolbarButton{16, "Help", "help"},
};

/// The keys of the menu image list, in its order.
inline constexpr std::array<std::string_view, 18> kMenuImages = {
    "EXIT",    "ELAN",      "ADS",       "HOSTLIST",   "PREAUDITED",  "MANADD",
    "EXPFILE", "FULLAUDIT", "CUSTAUDIT", "SETTINGS",   "HELP",        "LOOKUP",
    "VIEWLOG", "DELETELOG", "VIEWGRAPH", "REMOVEHOST", "ADDTOIGNORE", "ADDTOHIGHLIGHT"};

/// Number of the image with that key, counted from 1; 0 when there is none.
int ImageIndexOfKey(std::string_view image_key);

/// Gives the menu entry of that name the icon with that key.
void SetMenuIcon(MainForm& form, std::string_view image_key, std::string_view menu_name);

/// Gives all entries their icons.
void set_menu_icons(MainForm& form);

}  // namespace tessarine
