// The window of Form4, the custom audit.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class CustomAuditDialog : public FormDialog {
    Q_OBJECT

  public:
    CustomAuditDialog(EventDoor& door, QWidget* parent);
};

}  // namespace tessarine
