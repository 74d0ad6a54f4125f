// The real windows over a console of fakes.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <functional>

#include "app/events.h"
#include "fakes/rig.h"
#include "ui/form_windows.h"

namespace tessarine::fakes {

/// A test finds widgets by their object names, works them by QTest, and says beforehand what is to
/// be done in the dialogs and menus that come up.
class WindowRig {
  public:
    explicit WindowRig(std::span<const ControlEvent> events = control_events());
    ~WindowRig();
    WindowRig(const WindowRig&) = delete;
    WindowRig& operator=(const WindowRig&) = delete;

    /// Loads the main form and shows its window.
    void start();

    template <class Widget = QWidget>
    Widget& find(const char* name) {
        auto* found = windows.main_window().findChild<Widget*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    void trigger(const char* entry) { find<QAction>(entry).trigger(); }

    /// Acts once in the modal window or open menu of that name, when it has come up; one that
    /// doesn't come fails the test.
    void when_open(const char* name, std::function<void(QWidget&)> act);

    /// Loads a row into a table, as a record's eight fields.
    static void add_record(ListControl& list, const std::vector<std::string>& fields, int icon);

    Rig rig;  ///< the fakes; its own console and windows are not used
    QtFormWindows windows;
    Console console;

  private:
    int expected_ = 0;
};

/// Clicks the middle of a row, counted from 0.
void click_row(QWidget& table, int row, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {});

}  // namespace tessarine::fakes
