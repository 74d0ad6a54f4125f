// The alert list (codes to highlight) and the ignore list (codes to hide), and the file of each.
//
// A file holds one code a line; empty lines carry no meaning. After the start the list controls are
// what everything reads.
#pragma once

namespace tessarine {

struct Console;

/// Bring a file into its list. A file that is missing is created empty, and the list stays as it
/// is. Raise the errors of the file.
void LoadAlertPatterns(Console& console);
void LoadIgnoreList(Console& console);

/// Add the text of the field to the file, empty the field and load the list. An empty field is
/// added to the alert list, as a line without meaning, but not to the ignore list. Raise the errors
/// of the file.
void add_alert_pattern(Console& console);
void add_ignored_code(Console& console);

/// Write the file anew without the entries that equal the field, then go on like the additions.
/// Raise the errors of the file, and "Overflow" for a list of more than 32,767 entries.
void remove_alert_pattern(Console& console);
void remove_ignored_code(Console& console);

/// A click on a row copies its text to the field.
void pick_alert_pattern(Console& console);
void pick_ignored_code(Console& console);

/// Add the event code of the selected row of the event table that lblselectedTab names. Raise an
/// error when no row is selected, and the errors of the file.
void addtohighlightlist(Console& console);
void addtoignore(Console& console);

/// Adds the code of the selected row of the analysis table that lblselectedTab2 names to the alert
/// list, with the same errors.
void addtohighlightlist3(Console& console);

}  // namespace tessarine
