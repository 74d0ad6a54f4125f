// The three event logs that the console keeps.
#pragma once

#include <array>

namespace tessarine {

enum class EventLog { System, Application, Security };

/// In the order in which a job usually takes them, which is that of their tabs.
inline constexpr std::array kEventLogs = {EventLog::System, EventLog::Application,
                                          EventLog::Security};

}  // namespace tessarine
