// Which event of which control runs which routine.
#pragma once

#include <span>
#include <string_view>

#include "platform/form_windows.h"

namespace tessarine {

struct Console;

enum class EventKind {
    Click,        ///< menu entry, button, box; a tab or a row that has been selected
    MouseDown,    ///< a mouse button goes down on a list
    EnterKey,     ///< Enter in a text field
    GotFocus,     ///< a text field is entered
    MouseUp,      ///< a mouse button goes up on a list
    DoubleClick,  ///< or Enter, on a row
    Timer,
    Activate,  ///< the form comes up
    CloseBox,  ///< the frame's close box
    ColumnClick,
    DateClick,
    Change,  ///< a pair of arrows has stepped
};

enum class MouseButton { None, Left, Right };

/// What the event brings along.
struct InputDetails {
    MouseButton button = MouseButton::None;  ///< that went down or up
    int column = 0;                          ///< that was clicked, from 1; 0 for none
};

struct ControlEvent {
    FormId form;
    std::string_view control;
    EventKind kind;
    void (*routine)(Console&, const InputDetails&);
};

/// The table's entry for an event, or nothing: such a control is shown disabled.
const ControlEvent* find_event(std::span<const ControlEvent> events, FormId form,
                               std::string_view control, EventKind kind);

}  // namespace tessarine
