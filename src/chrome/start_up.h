// The start of the console.
#pragma once

namespace tessarine {

struct Console;

/// What happens when Form1 is loaded. Raises the errors of the two code lists' files.
void start_up(Console& console);

/// Form1 comes up, at the start and after every dialog.
void activate_main_form(Console& console);

}  // namespace tessarine
