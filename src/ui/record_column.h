// The right side of the main window: the three event tables and the analysis summary.
#pragma once

#include <QWidget>

#include "ui/event_door.h"

class QStackedWidget;

namespace tessarine {

class RecordColumn : public QWidget {
    Q_OBJECT

  public:
    explicit RecordColumn(EventDoor& door);

    /// Brings the page of the form's tab to the front.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    EventDoor& door_;
    QStackedWidget* pages_;
};

}  // namespace tessarine
