// The hand on the mouse and the keyboard.
#pragma once

#include <QString>
#include <QWidget>

class QAction;
class QMenu;
class QTableView;

namespace tessarine::tour {

/// Finds widgets by their object names and works them by mouse and key events. Whatever isn't
/// there, or is disabled, ends the tour.
class User {
  public:
    explicit User(QWidget& window) : window_(window) {}

    template <class Widget = QWidget>
    Widget& find(const QString& name) const {
        auto* found = window_.findChild<Widget*>(name);
        if (found == nullptr) missing(name);
        return *found;
    }

    /// Opens a menu of the menu bar; it stays open.
    QMenu& open_menu(const QString& menu) const;
    void close_menu() const;
    /// Opens the menu and picks the entry. Returns when the entry's command has ended.
    void choose(const QString& menu, const QString& entry) const;
    /// Picks an entry of a menu that is open.
    static void pick(QWidget& menu, const QString& entry);

    void click(const QString& name) const;
    void click_tab(const QString& name, int tab) const;
    /// Empties the field and types.
    void type(const QString& name, const QString& text) const;

    /// Rows count from 0. The right click ends when the menu that it opens has closed.
    void click_row(const QString& table, int row) const;
    void right_click_row(const QString& table, int row) const;
    /// Ends when the dialog that it opens has closed.
    void double_click_row(const QString& table, int row) const;
    /// Clicks the head of a column, which counts from 0.
    void click_head(const QString& table, int column) const;

    /// What a cell of a table shows.
    QString cell(const QString& table, int row, int column) const;
    int rows(const QString& table) const;

    /// Lets the windows settle.
    static void pause(int milliseconds = 120);

  private:
    [[noreturn]] void missing(const QString& name) const;
    QPoint place_of_row(const QTableView& table, int row) const;

    QWidget& window_;
};

}  // namespace tessarine::tour
