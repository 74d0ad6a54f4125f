// The audit that runs once a day with nobody at the keyboard.
#pragma once

namespace tessarine {

struct Console;

/// Each tick of tmrAutoAudit: shows the time and that of the run in panel 5, and starts the run in
/// the minute that is set.
void tick_schedule(Console& console);

/// Audits every host of the file that the settings name, once a day, and writes the report of the
/// run: what became of each host, and the stored events whose code is on the alert list; then mails
/// it where the settings say so. It has no handling of its own: a report that can't be written, a
/// stored file that can't be read, a record without an event code (where the alert list has any),
/// and a number of days back beyond 16 bits raise their errors.
void AutoAudit(Console& console);

}  // namespace tessarine
