// All windows of the console.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "core/control_events.h"
#include "platform/form_windows.h"
#include "ui/event_door.h"
#include "ui/input_gate.h"
#include "ui/main_window.h"
#include "ui/repainter.h"

namespace tessarine {

class FormDialog;

/// Shows the console's forms. Comes into being before the console, which needs it, and gets to know
/// it by `open`; until then, and after `close`, nothing is shown.
class QtFormWindows : public FormWindows {
  public:
    QtFormWindows();
    ~QtFormWindows() override;

    /// Makes the main window, hidden yet, for a console that outlives these windows or `close`.
    void open(Console& console, std::span<const ControlEvent> events);
    void close();

    MainWindow& main_window() { return *main_window_; }
    /// Shows the main window and tells its form that it has come up.
    void show_main_window();

    /// Shows what all forms hold now.
    void refresh();
    /// Lets the windows paint if it is time to; for waits within a routine, until whose end keys
    /// and mouse lead nowhere.
    void tick();

    void let_events_pass() override;
    void show_modal(FormId form) override;
    void event_ended() override;
    void pop_up_menu(std::string_view menu) override;

  private:
    std::unique_ptr<FormDialog> new_dialog(FormId form);
    bool shown(FormId form);
    void wait_while_shown(FormId form);
    void show_progress();
    void show_pointer();

    InputGate gate_;
    std::unique_ptr<EventDoor> door_;
    std::unique_ptr<MainWindow> main_window_;
    std::unique_ptr<Repainter> repainter_;
    std::vector<FormDialog*> dialogs_;
    bool hourglass_ = false;
};

}  // namespace tessarine
