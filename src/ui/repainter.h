// Lets the window paint while a routine keeps the thread.
#pragma once

#include <QElapsedTimer>
#include <functional>

#include "core/status_bar.h"
#include "ui/event_door.h"

namespace tessarine {

/// Shows the progress of a running routine about 30 times a second. The window paints and answers
/// the window system meanwhile; what the user does waits, and so do timers.
class Repainter : public RepaintHook {
  public:
    /// `show_progress` brings status bars and progress bars to their widgets.
    Repainter(EventDoor& door, std::function<void()> show_progress);

    void status_changed(StatusChange change) override;

    /// For a routine that waits without a change of its status: paints if it is time to.
    void tick();

  private:
    EventDoor& door_;
    std::function<void()> show_progress_;
    QElapsedTimer since_last_;
    unsigned counts_ = 0;
};

}  // namespace tessarine
