#include "core/control_events.h"

#include <algorithm>

namespace tessarine {

const ControlEvent* find_event(std::span<const ControlEvent> events, FormId form,
                               std::string_view control, EventKind kind) {
    const auto found = std::find_if(events.begin(), events.end(), [&](const ControlEvent& event) {
        return event.form == form && event.control == control && event.kind == kind;
    });
    return found == events.end() ? nullptr : &*found;
}

}  // namespace tessarine
