// The window of Form2, the details of one event.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class EventDetailsDialog : public FormDialog {
    Q_OBJECT

  public:
    EventDetailsDialog(EventDoor& door, QWidget* parent);
};

}  // namespace tessarine
