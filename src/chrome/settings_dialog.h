// Form3, the settings dialog: its pages, its choosers, and what its buttons save.
#pragma once

#include <string>

namespace tessarine {

struct Console;

void show_settings(Console& console);

/// The four save buttons. What can't be written is passed over, and the status text comes all the
/// same; the mail page is saved only when all of its fields are filled.
void save_audit_settings(Console& console);
void save_credentials(Console& console);
void save_mail_settings(Console& console);
void save_schedule(Console& console);

/// An up-down has stepped. Hours run from 00 to 24 and minutes from 00 to 60, and wrap at both
/// ends.
void step_hour(Console& console);
void step_minute(Console& console);
void step_days_back(Console& console);

/// Lets the user choose a folder, which comes with a separator at its end; `fallback` when he
/// cancels.
std::string BrowseForFolder(Console& console, const std::string& caption,
                            const std::string& fallback);

/// Choosers. What is chosen goes into the field, also the empty text of a chooser that is
/// cancelled.
void browse_for_log_path(Console& console);
void browse_for_archive_path(Console& console);
void browse_for_host_file(Console& console);

}  // namespace tessarine
