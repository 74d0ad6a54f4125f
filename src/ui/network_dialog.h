// The window of Form7, the groups of the Windows network.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class ListView;

class NetworkDialog : public FormDialog {
    Q_OBJECT

  public:
    NetworkDialog(EventDoor& door, QWidget* parent);
    /// The rows go with the form, before the window does.
    void refresh() override;

  private:
    ListView* groups_;
};

}  // namespace tessarine
