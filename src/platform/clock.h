// The present moment and the zone of the console's machine.
#pragma once

#include "platform/date_time.h"

namespace tessarine {

class Clock {
  public:
    virtual ~Clock() = default;

    /// The machine's wall clock.
    virtual DateTime now() = 0;

    /// Minutes that the machine's wall clock is ahead of UTC at the local moment `local`.
    virtual int minutes_ahead_of_utc(const DateTime& local) = 0;
};

}  // namespace tessarine
