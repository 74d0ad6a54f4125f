#include "chrome/help_menu.h"

#include "core/console_state.h"
#include "platform/form_windows.h"
#include "platform/program.h"
#include "platform/shell.h"
#include "store/log_files.h"

namespace tessarine {

void open_help(Console& console) {
    console.platform.shell.open(
        path_in(console.platform.program.application_directory(), "Tessarine.chm"));
}

void show_about(Console& console) {
    console.AboutForm.get();
    console.platform.form_windows.show_modal(console.AboutForm.kId);
}

}  // namespace tessarine
