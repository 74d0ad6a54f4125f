#include "audit/event_query.h"

#include <cstdlib>

#include "core/console_state.h"
#include "core/regional_text.h"
#include "core/text.h"
#include "platform/clock.h"

namespace tessarine {

std::string event_query(Console& console, const std::string& kind) {
    if (kind == "full") return "SELECT * FROM Win32_NTLogEvent";
    const Date first = date_of_text(kind);
    std::string query = "Select * from Win32_NTLogEvent Where TimeWritten >= '" +
                        dmtf_of_local_midnight(console.platform.clock, first) + "'";
    // KEEP(specific-date-couples-to-the-dialog): handing the tick on from the custom audit would
    // keep one that stays behind from a later audit of the schedule.
    if (console.Form4->chkSpecificDate.value != 0)
        query += " and TimeWritten < '" +
                 dmtf_of_local_midnight(console.platform.clock, day_after(first)) + "'";
    return query;
}

std::string dmtf_of_local_midnight(Clock& clock, const Date& date) {
    const int offset = clock.minutes_ahead_of_utc({.date = date});
    return padded(date.year, 4) + padded(date.month, 2) + padded(date.day, 2) + "000000.000000" +
           (offset < 0 ? "-" : "+") + padded(std::abs(offset), 3);
}

}  // namespace tessarine
