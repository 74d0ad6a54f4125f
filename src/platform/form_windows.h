// What the console asks of the windows that show its forms.
#pragma once

#include <compare>
#include <string_view>

namespace tessarine {

/// Which form, by its name, under which its own events stand in the table of events too.
struct FormId {
    std::string_view name;  ///< a literal

    auto operator<=>(const FormId&) const = default;
};

class FormWindows {
  public:
    virtual ~FormWindows() = default;

    /// Lets all pending events of the window system run, user input included.
    virtual void let_events_pass() = 0;

    /// Shows a form that is loaded and keeps the user from all others until it is hidden or
    /// unloaded; events run meanwhile.
    virtual void show_modal(FormId form) = 0;

    /// Called when an event's routine has ended: the windows may look at the forms again.
    virtual void event_ended() = 0;

    /// Opens the context menu of that name at the pointer; returns when it has closed.
    virtual void pop_up_menu(std::string_view menu) = 0;
};

}  // namespace tessarine
