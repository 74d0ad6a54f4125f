// Dates and times in the regional form of the console's machine.
#pragma once

#include <locale>
#include <string>

#include "platform/date_time.h"

namespace tessarine {

/// Turns dates and times into text by a locale's short forms; in the "C" locale, and where there is
/// none, M/D/YYYY and h:mm:ss AM/PM. Results are in the console's 8-bit code page.
class RegionalText {
  public:
    /// The fixed forms of the "C" locale.
    RegionalText() = default;
    explicit RegionalText(const std::locale& locale);

    /// The forms of the machine, by LC_ALL, LC_TIME or LANG.
    static RegionalText of_this_machine();

    std::string date(const Date& date) const;
    std::string time(const TimeOfDay& time) const;
    /// Date, a blank, and time.
    std::string date_time(const DateTime& moment) const;

  private:
    std::string formatted(const DateTime& moment, char conversion) const;

    std::locale locale_ = std::locale::classic();
    bool fixed_forms_ = true;
};

/// Reads month "/" day "/" year, the form in which the console itself hands dates about. Raises
/// "Type mismatch" when the text is no date of the calendar.
Date date_of_text(const std::string& text);

/// Reads hour ":" minute ":" second with the same error.
TimeOfDay time_of_text(const std::string& text);

/// Month "/" day "/" year without leading zeros.
std::string text_of_date(const Date& date);

/// The day after `date`.
Date day_after(const Date& date);

}  // namespace tessarine
