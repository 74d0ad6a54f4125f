// A form's timer control.
#pragma once

#include <QTimer>
#include <string_view>

#include "core/controls.h"
#include "ui/event_door.h"

namespace tessarine {

/// Raises the control's Timer event every interval while the control is enabled.
class FormTimer : public QTimer {
    Q_OBJECT

  public:
    FormTimer(EventDoor& door, FormId form, std::string_view name, const Timer& control,
              QObject* parent);

    /// Starts or stops as the control stands now.
    void refresh(const Timer& control);

  private:
    void raise();

    EventDoor& door_;
    FormId form_;
    std::string_view name_;
    int interval_ = 0;
};

}  // namespace tessarine
