// Custom audits: Form4 sets the logs and the date.
#pragma once

namespace tessarine {

struct Console;

/// Shows Form4 for the selected hosts; without any it only says so. Raises no error.
void custaudit(Console& console);

/// Shows Form4 for all hosts of the list. Raises no error.
void runcustomforallhosts(Console& console);

/// Form4 comes up: today, everything from then on. Raises no error.
void activate_custom_audit(Console& console);

/// A day has been chosen in MonthView1. Raises no error.
void choose_audit_date(Console& console);

/// chkSpecificDate has been clicked. Raises no error.
void click_specific_date(Console& console);

/// "OK": audits the hosts that lblHostName tells. Raises no error.
void run_custom_audit(Console& console);

}  // namespace tessarine
