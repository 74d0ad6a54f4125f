// Dates and times in the regional form of the console's machine.
#pragma once

#include <array>
#include <cstddef>
#include <locale>
#include <optional>
#include <string>

#include "platform/date_time.h"

namespace tessarine {

/// Turns dates and times into text by a locale's short forms; in the "C" locale, and where there is
/// none, M/D/YYYY and h:mm:ss AM/PM. Results are in the console's 8-bit code page.
///
/// What is written must be readable later, wherever that is: a year always has four digits, what
/// the code page lacks of a form is "/" in a date and ":" in a time, and where that leaves no date
/// or no time, it has the form of the "C" locale.
class RegionalText {
  public:
    /// The fixed forms of the "C" locale.
    RegionalText();
    explicit RegionalText(const std::locale& locale);

    /// The forms of the machine, by LC_ALL, LC_TIME or LANG.
    static RegionalText of_this_machine();

    std::string date(const Date& date) const;
    std::string time(const TimeOfDay& time) const;
    /// The time at the end of `text`, without a string of its own.
    void append_time(std::string& text, const TimeOfDay& time) const;
    /// Date, a blank, and time.
    std::string date_time(const DateTime& moment) const;

  private:
    /// What stands around minutes and seconds within one hour, as "6:", ":" and " PM".
    struct HourForm {
        std::string before, between, after;
        bool operator==(const HourForm&) const = default;
    };
    using HourForms = std::array<HourForm, 24>;

    static HourForms fixed_hours();
    static bool hours_of(const std::locale& locale, HourForms& hours);
    void take_date_form();

    std::locale locale_ = std::locale::classic();
    bool fixed_dates_ = true;
    std::optional<std::size_t> short_year_;  // which number of a date is a year of two digits
    HourForms hours_;
};

/// The date of these numbers; raises "Type mismatch" when the calendar has none.
Date calendar_date(int year, int month, int day);

/// The time of these numbers, with the same error.
TimeOfDay time_of_day(int hour, int minute, int second);

/// Reads month "/" day "/" year, the form in which the console itself hands dates about. Raises
/// "Type mismatch" when the text is no date of the calendar.
Date date_of_text(const std::string& text);

/// Month "/" day "/" year without leading zeros.
std::string text_of_date(const Date& date);

/// The day after `date`.
Date day_after(const Date& date);

}  // namespace tessarine
