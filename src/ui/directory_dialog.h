// The window of frmADS, the objects of a directory.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class ListView;

class DirectoryDialog : public FormDialog {
    Q_OBJECT

  public:
    DirectoryDialog(EventDoor& door, QWidget* parent);

    void refresh() override;

  private:
    ListView* objects_;
};

}  // namespace tessarine
