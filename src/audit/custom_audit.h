// Custom audits: Form4 sets the logs and the date.
#pragma once

namespace tessarine {

struct Console;

/// Shows Form4 for the selected hosts; without any it only says so. Raises "Overflow" for a list of
/// more than 32,767 hosts.
void custaudit(Console& console);

/// Shows Form4 for all hosts of the list.
void runcustomforallhosts(Console& console);

/// Form4 comes up: today, everything from then on.
void activate_custom_audit(Console& console);

/// A day has been chosen in MonthView1.
void choose_audit_date(Console& console);

/// chkSpecificDate has been clicked.
void click_specific_date(Console& console);

/// "OK": audits the hosts that lblHostName tells. Raises "Overflow" where these are all, or all
/// selected ones, of a list of more than 32,767.
void run_custom_audit(Console& console);

}  // namespace tessarine
