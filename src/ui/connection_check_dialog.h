// The window of ConCheck, the test of whether a host listens.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

/// Runs the form's timer while it is there. Neither Esc nor the close box cuts the wait short.
class ConnectionCheckDialog : public FormDialog {
    Q_OBJECT

  public:
    ConnectionCheckDialog(EventDoor& door, QWidget* parent);

  protected:
    void close_form() override {}
};

}  // namespace tessarine
