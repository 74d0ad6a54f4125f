// The left column of the main window: hosts, search and analysis, alert and ignore lists.
#pragma once

#include <QWidget>

#include "ui/event_door.h"

class QStackedWidget;

namespace tessarine {

class HostColumn : public QWidget {
    Q_OBJECT

  public:
    explicit HostColumn(EventDoor& door);

    /// Brings the page of the form's tab to the front.
    void refresh();

  private:
    QWidget* new_host_page();
    QWidget* new_search_page();
    QWidget* new_search_group();
    QWidget* new_analysis_group();
    QWidget* new_code_page();

    EventDoor& door_;
    QStackedWidget* pages_;
};

}  // namespace tessarine
