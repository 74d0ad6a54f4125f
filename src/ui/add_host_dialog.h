// The window of Form6, adding hosts by hand.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class AddHostDialog : public FormDialog {
    Q_OBJECT

  public:
    AddHostDialog(EventDoor& door, QWidget* parent);
};

}  // namespace tessarine
