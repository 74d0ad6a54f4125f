// The only way from the window into the console's routines.
#pragma once

#include <QMouseEvent>
#include <QPoint>
#include <span>
#include <string_view>

#include "core/control_events.h"

namespace tessarine {

inline MouseButton button_of(const QMouseEvent& event) {
    if (event.button() == Qt::RightButton) return MouseButton::Right;
    return event.button() == Qt::LeftButton ? MouseButton::Left : MouseButton::None;
}

/// Raises the events of controls. While it is held (the window only paints, in the midst of a
/// routine) nothing gets through.
class EventDoor {
  public:
    EventDoor(Console& console, std::span<const ControlEvent> events)
        : console_(console), events_(events) {}

    Console& console() const { return console_; }

    /// Whether the event leads anywhere; a control without its event is shown disabled.
    bool leads_on(FormId form, std::string_view control, EventKind kind) const {
        return find_event(events_, form, control, kind) != nullptr;
    }

    /// Runs the event's routine, if it has one.
    void raise(FormId form, std::string_view control, EventKind kind,
               const InputDetails& details = {}) const;

    bool held() const { return held_; }
    void hold(bool held) { held_ = held; }

    /// Where on the screen the next context menu opens.
    QPoint menu_place() const { return menu_place_; }
    void set_menu_place(const QPoint& place) { menu_place_ = place; }

  private:
    Console& console_;
    std::span<const ControlEvent> events_;
    bool held_ = false;
    QPoint menu_place_;
};

}  // namespace tessarine
