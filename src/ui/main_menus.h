// The main window's menus, context menus and toolbar.
#pragma once

#include <QObject>
#include <map>
#include <string_view>

#include "ui/event_door.h"

class QAction;
class QMainWindow;
class QMenu;

namespace tessarine {

struct MenuTableRow;
struct ToolbarButton;

/// Builds them from the console's tables and keeps their texts, marks and pictures as the form has
/// them. An entry without an event is disabled.
class MainMenus : public QObject {
    Q_OBJECT

  public:
    MainMenus(EventDoor& door, QMainWindow& window);

    void refresh();

    /// Opens the context menu of that name where the door says; returns when it has closed.
    void pop_up(std::string_view menu);

  private:
    void add_menu(QMainWindow& window, std::string_view name, const QString& caption);
    void add_entry(const MenuTableRow& row);
    void add_toolbar(QMainWindow& window);
    void refresh_entry(const MenuTableRow& row);
    void refresh_button(const ToolbarButton& button);
    bool leads_on(std::string_view entry) const;

    EventDoor& door_;
    std::map<std::string_view, QMenu*> menus_;
    std::map<std::string_view, QAction*> entries_;
    std::map<int, QAction*> buttons_;
};

}  // namespace tessarine
