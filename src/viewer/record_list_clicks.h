// What the mouse does on the event tables and on the analysis tables.
#pragma once

namespace tessarine {

struct Console;
struct InputDetails;

/// A mouse button goes up over an event table: the right one opens its menu, unless there is no row
/// that it could be about. Raise no error.
void release_on_system_list(Console& console, const InputDetails& details);
void release_on_application_list(Console& console, const InputDetails& details);
void release_on_security_list(Console& console, const InputDetails& details);

/// A click on a column's head: sorts by that column, the other way round with every second click.
/// Raise no error.
void click_column_of_system_list(Console& console, const InputDetails& details);
void click_column_of_application_list(Console& console, const InputDetails& details);

/// A mouse button goes up over an analysis table: lblEventDetail tells the selected row, and the
/// right button opens the menu. Raise a RuntimeError for a row without a source.
void release_on_system_analysis(Console& console, const InputDetails& details);
void release_on_application_analysis(Console& console, const InputDetails& details);
void release_on_security_analysis(Console& console, const InputDetails& details);

}  // namespace tessarine
