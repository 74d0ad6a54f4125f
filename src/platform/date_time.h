// Plain calendar values, without a zone.
#pragma once

namespace tessarine {

/// A day of the proleptic Gregorian calendar: month 1 to 12, day 1 to 31.
struct Date {
    int year = 1899;
    int month = 12;
    int day = 30;

    friend bool operator==(const Date&, const Date&) = default;
};

/// A time of day: hour 0 to 23.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;
};

struct DateTime {
    Date date;
    TimeOfDay time;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

}  // namespace tessarine
