// A clock that stands still until a test sets it.
#pragma once

#include <deque>

#include "platform/clock.h"

namespace tessarine::fakes {

class FakeClock final : public Clock {
  public:
    DateTime now() override {
        const DateTime present = moment;
        if (!later_moments.empty()) {
            moment = later_moments.front();
            later_moments.pop_front();
        }
        return present;
    }
    int minutes_ahead_of_utc(const DateTime& /*local*/) override { return minutes_ahead; }

    DateTime moment{.date = {2004, 11, 30}, .time = {23, 59, 59}};
    std::deque<DateTime> later_moments;  ///< what the next calls find, one each
    int minutes_ahead = 60;
};

}  // namespace tessarine::fakes
