// The marks of the tabs whose logs have an alert.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

#include "core/icons.h"
#include "core/log_facts.h"

namespace tessarine {

/// Which logs had a record that the alert list names.
class LogAlerts {
  public:
    void set(EventLog log) { alerts_[static_cast<std::size_t>(log)] = true; }
    bool of(EventLog log) const { return alerts_[static_cast<std::size_t>(log)]; }

  private:
    std::array<bool, kEventLogs.size()> alerts_{};
};

/// Sets the images of the tabs of these logs.
inline void mark_tabs(MainForm& form, const LogAlerts& alerts,
                      std::initializer_list<EventLog> logs) {
    for (const EventLog log : logs)
        tab_of(form, log).image = alerts.of(log) ? kTabAlert : kTabPlain;
}

}  // namespace tessarine
