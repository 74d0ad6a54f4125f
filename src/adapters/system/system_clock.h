// The machine's clock and zone.
#pragma once

#include "platform/clock.h"

namespace tessarine {

class SystemClock final : public Clock {
  public:
    DateTime now() override;
    int minutes_ahead_of_utc(const DateTime& local) override;
};

}  // namespace tessarine
