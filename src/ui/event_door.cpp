#include "ui/event_door.h"

#include "core/console_state.h"
#include "core/run_event.h"

namespace tessarine {

void EventDoor::raise(FormId form, std::string_view control, EventKind kind,
                      const InputDetails& details) const {
    const ControlEvent* event = find_event(events_, form, control, kind);
    if (event == nullptr || held_ || !console_.Form1.loaded) return;
    run_event(console_, [&](Console& console) { event->routine(console, details); });
}

}  // namespace tessarine
