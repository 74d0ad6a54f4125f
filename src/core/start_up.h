// The start of the console, and the menu entries and tabs of the main window that belong to no part
// of it.
#pragma once

namespace tessarine {

struct Console;

/// What happens when Form1 is loaded. Raises the errors of the two code lists' files.
void start_up(Console& console);

/// Put the pages of a tab strip on one another, the first one on top. Raise no error.
void PositionHost(Console& console);
void PositionMain(Console& console);

/// Form1 comes up, at the start and after every dialog. Raises no error.
void activate_main_form(Console& console);

/// A tab of TabStrip1 or of TabStrip2 has been selected. Raise no error.
void click_tab_of_left_strip(Console& console);
void click_tab_of_right_strip(Console& console);

/// The view menus: each flips its check mark and stores it. The tables follow at the next load, the
/// grid lines at once. Raise no error.
void highlightpatt(Console& console);
void hideignore(Console& console);
void shogrid(Console& console);

/// Open the help file, show what program this is, end the program. Raise no error.
void open_help(Console& console);
void show_about(Console& console);
void exit_console(Console& console);

}  // namespace tessarine
