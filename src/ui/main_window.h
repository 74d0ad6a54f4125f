// The window of Form1.
#pragma once

#include <QMainWindow>

#include "ui/event_door.h"

class QLineEdit;

namespace tessarine {

class ControlBinder;
class FormTimer;
class HostColumn;
class MainMenus;
class RecordColumn;

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit MainWindow(EventDoor& door);

    /// Shows what the form holds now.
    void refresh();
    /// Shows the status bar, the progress bar and the mouse pointer alone.
    void refresh_progress();

    MainMenus& menus() { return *menus_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void fit_into(const QSize& room);
    void show_pointer();
    void add_host_field();
    void add_status_bar();

    EventDoor& door_;
    MainMenus* menus_;
    HostColumn* hosts_;
    RecordColumn* records_;
    ControlBinder* binder_;
    FormTimer* schedule_;
};

}  // namespace tessarine
