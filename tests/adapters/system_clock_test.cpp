#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <optional>

#include "adapters/system/system_clock.h"

namespace tessarine {
namespace {

// The zone of the process, for the time of a test.
class Zone {
  public:
    explicit Zone(const char* zone) {
        if (const char* before = std::getenv("TZ")) before_ = before;
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~Zone() {
        if (before_)
            ::setenv("TZ", before_->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;

  private:
    std::optional<std::string> before_;
};

std::chrono::sys_seconds as_if_utc(const DateTime& moment) {
    const std::chrono::year_month_day day{
        std::chrono::year(moment.date.year),
        std::chrono::month(static_cast<unsigned>(moment.date.month)),
        std::chrono::day(static_cast<unsigned>(moment.date.day))};
    return std::chrono::sys_days(day) + std::chrono::hours(moment.time.hour) +
           std::chrono::minutes(moment.time.minute) + std::chrono::seconds(moment.time.second);
}

TEST(SystemClock, TheWallClockIsAheadByWhatItSays) {
    for (const char* name : {"UTC0", "XXX-05:30", "YYY+11"}) {
        const Zone zone(name);
        SystemClock clock;
        const DateTime now = clock.now();
        const auto utc = as_if_utc(now) - std::chrono::minutes(clock.minutes_ahead_of_utc(now));
        const std::chrono::duration<double> apart = std::chrono::system_clock::now() - utc;
        EXPECT_LT(std::abs(apart.count()), 5.0) << name;
    }
}

TEST(SystemClock, SummerTimeCountsByTheDayThatIsAskedFor) {
    const Zone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    SystemClock clock;
    EXPECT_EQ(clock.minutes_ahead_of_utc({{2004, 11, 30}, {23, 59, 59}}), 60);
    EXPECT_EQ(clock.minutes_ahead_of_utc({{2005, 7, 1}, {0, 0, 0}}), 120);
    EXPECT_EQ(clock.minutes_ahead_of_utc({{2005, 3, 27}, {1, 59, 59}}), 60);
    EXPECT_EQ(clock.minutes_ahead_of_utc({{2005, 3, 27}, {3, 0, 0}}), 120);
}

}  // namespace
}  // namespace tessarine
