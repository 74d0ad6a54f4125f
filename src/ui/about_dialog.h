// The window of AboutForm, what program this is.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class AboutDialog : public FormDialog {
    Q_OBJECT

  public:
    AboutDialog(EventDoor& door, QWidget* parent);
};

}  // namespace tessarine
