// The page "Analysis Summary" of the main window.
#pragma once

class QWidget;

namespace tessarine {

class EventDoor;

/// A table of event codes and a chart of event types for each of the three logs, side by side.
QWidget* new_summary_page(EventDoor& door);

}  // namespace tessarine
