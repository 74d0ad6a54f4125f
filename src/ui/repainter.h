// Lets the window paint while a routine keeps the thread.
#pragma once

#include <QElapsedTimer>
#include <functional>

#include "core/status_bar.h"
#include "ui/event_door.h"
#include "ui/input_gate.h"

namespace tessarine {

/// Shows the progress of a running routine about 30 times a second. The window paints and answers
/// the window system meanwhile; what the user does waits, or stops at the gate when that is shut,
/// and timers wait.
class Repainter : public RepaintHook {
  public:
    /// `show_progress` brings status bars and progress bars to their widgets.
    Repainter(EventDoor& door, InputGate& gate, std::function<void()> show_progress);

    void status_changed(StatusChange change) override;

    /// For a routine that waits for a host: paints if it is time to, and tells whoever clicks to be
    /// patient.
    void tick();

  private:
    void paint();

    EventDoor& door_;
    InputGate& gate_;
    std::function<void()> show_progress_;
    QElapsedTimer since_last_;
    QElapsedTimer since_change_;
    bool changed_ = false;
    unsigned counts_ = 0;
};

}  // namespace tessarine
