// What the keyboard does in a window beyond what each widget does by itself.
#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QLineEdit;
class QMainWindow;
class QMenu;
class QPushButton;

namespace tessarine {

class ListView;

/// F10 opens the menu bar, and Ctrl+Tab is about the strip in whose `left` or `right` column the
/// focus is.
void add_window_keys(QMainWindow& window, QWidget& left, QWidget& right);

/// Ctrl+Tab and Ctrl+Shift+Tab turn the pages of the strip in the column that `column` gives then,
/// and give the focus to the new page.
void add_page_keys(QWidget& window, const std::function<QWidget&()>& column);

/// Enter in `field` presses `button`, and leaves the focus in the field.
void press_on_enter(QLineEdit& field, QPushButton& button);

/// Delete on a row of `list` presses `button`, after the row has been picked.
void press_on_delete(ListView& list, QPushButton& button);

/// A letter goes to the next entry of the menu that begins with it.
class EntriesByLetter : public QObject {
  public:
    explicit EntriesByLetter(QMenu& menu);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool go_to_entry(const QString& letter);

    QMenu& menu_;
};

}  // namespace tessarine
