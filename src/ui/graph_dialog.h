// The window of Form5, the graph of the loaded logs.
#pragma once

#include "ui/form_dialog.h"

namespace tessarine {

class GraphDialog : public FormDialog {
    Q_OBJECT

  public:
    GraphDialog(EventDoor& door, QWidget* parent);
};

}  // namespace tessarine
