// The window of Form3, the settings.
#pragma once

#include "ui/form_dialog.h"

class QStackedWidget;

namespace tessarine {

class SettingsDialog : public FormDialog {
    Q_OBJECT

  public:
    SettingsDialog(EventDoor& door, QWidget* parent);

    void refresh() override;

  private:
    // A page's frame with `rows` of widgets below one another, and its save button.
    QWidget* new_page(int page, QLayout* rows, QWidget* save);

    QStackedWidget* pages_;
};

}  // namespace tessarine
