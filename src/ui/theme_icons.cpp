#include "ui/theme_icons.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarine {
namespace {

constexpr std::array<std::pair<std::string_view, const char*>, 25> kThemeNames = {{
    {"EXIT", "application-exit"},
    {"ELAN", "network-workgroup"},
    {"ADS", "network-server-database"},
    {"HOSTLIST", "document-open"},
    {"PREAUDITED", "document-open-recent"},
    {"MANADD", "list-add"},
    {"EXPFILE", "document-export"},
    {"FULLAUDIT", "media-playback-start"},
    {"CUSTAUDIT", "view-calendar-day"},
    {"SETTINGS", "configure"},
    {"HELP", "help-contents"},
    {"LOOKUP", "internet-web-browser"},
    {"VIEWLOG", "view-list-details"},
    {"DELETELOG", "edit-delete"},
    {"VIEWGRAPH", "office-chart-pie"},
    {"REMOVEHOST", "list-remove"},
    {"ADDTOIGNORE", "dialog-cancel"},
    {"ADDTOHIGHLIGHT", "flag-red"},
    // Toolbar buttons whose menu entries have a check mark or are not there.
    {"highlightpatt", "flag-red"},
    {"shogrid", "view-grid"},
    {"hideignore", "view-filter"},
    {"print", "document-print"},
    // Buttons of the details of an event.
    {"CmdUp", "go-up"},
    {"CmdDown", "go-down"},
    {"cmdClipboard", "edit-copy"},
}};

}  // namespace

void choose_icon_theme() {
    // Without a desktop Qt looks for themes in its own resources alone.
    QStringList places = QIcon::themeSearchPaths();
    if (!places.contains(QStringLiteral("/usr/share/icons")))
        places.append(QStringLiteral("/usr/share/icons"));
    QIcon::setThemeSearchPaths(places);
    QIcon::setThemeName(QStringLiteral("oxygen"));
}

QIcon menu_icon(std::string_view key) {
    const auto* found = std::find_if(kThemeNames.begin(), kThemeNames.end(),
                                     [&](const auto& row) { return row.first == key; });
    return found == kThemeNames.end() ? QIcon() : QIcon::fromTheme(found->second);
}

}  // namespace tessarine
