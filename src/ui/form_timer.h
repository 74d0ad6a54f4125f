// A form's timer control.
#pragma once

#include <QTimer>
#include <string_view>

#include "core/controls.h"
#include "ui/event_door.h"

namespace tessarine {

/// Raises the control's Timer event every interval while its parent lives.
class FormTimer : public QTimer {
    Q_OBJECT

  public:
    FormTimer(EventDoor& door, FormId form, std::string_view name, const Timer& control,
              QObject* parent);

  private:
    void raise();

    EventDoor& door_;
    FormId form_;
    std::string_view name_;
    int interval_;
};

}  // namespace tessarine
