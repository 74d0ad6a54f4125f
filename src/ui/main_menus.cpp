#include "ui/main_menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>
#include <array>
#include <utility>

#include "core/console_state.h"
#include "core/menus.h"
#include "qt/qt_text.h"
#include "ui/mnemonics.h"
#include "ui/theme_icons.h"
#include "ui/window_keys.h"

namespace tessarine {
namespace {

constexpr std::array<std::string_view, 3> kContextMenus = {"MyMenu", "popmeup2", "popmeup3"};

// Entries that show a state, in the menu by a check mark and in the toolbar by a pressed button.
constexpr std::array<std::string_view, 3> kToggles = {"highlightpatt", "hideignore", "shogrid"};

constexpr std::array<std::pair<std::string_view, const char*>, 3> kShortcuts = {
    {{"exit", "Ctrl+Q"}, {"loadfrmlist", "Ctrl+O"}, {"help", "F1"}}};

bool is_toggle(std::string_view entry) {
    return std::find(kToggles.begin(), kToggles.end(), entry) != kToggles.end();
}

const MenuTableRow* row_of(std::string_view entry) {
    const auto* found = std::find_if(kMenuTable.begin(), kMenuTable.end(),
                                     [&](const MenuTableRow& row) { return row.name == entry; });
    return found == kMenuTable.end() ? nullptr : found;
}

const std::string& bar_caption(const MainForm& form, std::string_view menu) {
    if (menu == "file") return form.file.caption;
    if (menu == "hosts") return form.hosts.caption;
    if (menu == "run") return form.run.caption;
    if (menu == "prefs") return form.prefs.caption;
    return form.Help.caption;
}

}  // namespace

MainMenus::MainMenus(EventDoor& door, QMainWindow& window) : QObject(&window), door_(door) {
    const MainForm& form = door.console().Form1;
    Mnemonics letters;
    for (const std::string_view name : kMenuBar)
        add_menu(window, name, letters.give(to_qt(bar_caption(form, name))));
    for (const std::string_view name : kContextMenus) {
        menus_[name] = new QMenu(&window);
        menus_[name]->setObjectName(object_name(name));
        new EntriesByLetter(*menus_[name]);
    }
    for (const MenuTableRow& row : kMenuTable) add_entry(row);
    add_toolbar(window);
}

void MainMenus::add_menu(QMainWindow& window, std::string_view name, const QString& caption) {
    menus_[name] = window.menuBar()->addMenu(caption);
    menus_[name]->setObjectName(object_name(name));
}

void MainMenus::add_entry(const MenuTableRow& row) {
    QMenu* menu = menus_.at(row.menu);
    if (row.entry == nullptr) {
        menu->addSeparator();
        return;
    }
    QAction* action = menu->addAction(QString());
    action->setObjectName(object_name(row.name));
    action->setCheckable(is_toggle(row.name));
    for (const auto& [entry, keys] : kShortcuts)
        if (entry == row.name) action->setShortcut(QKeySequence(keys));
    entries_[row.name] = action;
    connect(action, &QAction::triggered, this, [this, name = row.name] {
        refresh();  // A check mark is the console's to set, not the click's.
        door_.raise(MainForm::kId, name, EventKind::Click);
    });
}

void MainMenus::add_toolbar(QMainWindow& window) {
    auto* bar = new QToolBar(QObject::tr("Toolbar"), &window);
    bar->setObjectName("Toolbar1");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({22, 22});
    window.addToolBar(bar);
    for (const ToolbarButton& button : kToolbar) {
        if (button.raises.empty()) {
            bar->addSeparator();
            continue;
        }
        QAction* action = bar->addAction(object_name(button.tool_tip));
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(button.index));
        action->setToolTip(object_name(button.tool_tip));
        action->setCheckable(is_toggle(button.raises));
        const MenuTableRow* row = row_of(button.raises);
        const bool has_key = row != nullptr && !row->icon_key.empty();
        action->setIcon(menu_icon(has_key ? row->icon_key : button.raises));
        buttons_[button.index] = action;
        connect(action, &QAction::triggered, this, [this, name = button.raises] {
            refresh();
            door_.raise(MainForm::kId, name, EventKind::Click);
        });
    }
}

bool MainMenus::leads_on(std::string_view entry) const {
    return door_.leads_on(MainForm::kId, entry, EventKind::Click);
}

void MainMenus::refresh() {
    for (const MenuTableRow& row : kMenuTable)
        if (row.entry != nullptr) refresh_entry(row);
    for (const ToolbarButton& button : kToolbar)
        if (!button.raises.empty()) refresh_button(button);
}

void MainMenus::refresh_entry(const MenuTableRow& row) {
    const MenuEntry& entry = door_.console().Form1.*row.entry;
    QAction& action = *entries_.at(row.name);
    if (action.text().isEmpty()) action.setText(to_qt(entry.caption));
    action.setChecked(entry.checked);
    action.setEnabled(entry.enabled && leads_on(row.name));
    const bool has_icon = entry.icon >= 0 && entry.icon < static_cast<int>(kMenuImages.size());
    if (has_icon && action.icon().isNull())
        action.setIcon(menu_icon(kMenuImages[static_cast<std::size_t>(entry.icon)]));
}

void MainMenus::refresh_button(const ToolbarButton& button) {
    QAction& action = *buttons_.at(button.index);
    const MenuTableRow* row = row_of(button.raises);
    action.setChecked(row != nullptr && (door_.console().Form1.*row->entry).checked);
    action.setEnabled(leads_on(button.raises));
}

void MainMenus::pop_up(std::string_view menu) {
    const auto found = menus_.find(menu);
    if (found != menus_.end()) found->second->exec(door_.menu_place());
}

}  // namespace tessarine
