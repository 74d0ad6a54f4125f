#include "chrome/start_up.h"

#include <string>

#include "core/console_state.h"
#include "core/menus.h"
#include "core/runtime_error.h"
#include "core/settings_store.h"
#include "core/tabs.h"
#include "patterns/code_lists.h"
#include "platform/dialogs.h"
#include "platform/form_windows.h"
#include "platform/settings_values.h"

namespace tessarine {
namespace {

std::string version() {
    return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

void set_column_widths(MainForm& form) {
    form.ListView1.columns.front().width = form.ListView1.width / 2;
    for (ListControl* table : {&form.SystemList, &form.ApplicationList, &form.SecurityList})
        for (ListColumn& column : table->columns)
            column.width = table->width / static_cast<int>(table->columns.size());
}

void empty_charts(MainForm& form) {
    form.sysPie.points = {0, 0, 0};
    form.appPie.points = {0, 0, 0};
    form.SecPie.points = {0, 0};
}

// False when the user wants another look. Nobody is to audit under defaults that he didn't choose.
bool settings_can_be_loaded(Console& console) {
    Dialogs& dialogs = console.platform.dialogs;
    try {
        const std::string note = console.platform.settings_values.check();
        if (!note.empty()) dialogs.message_box(note, MessageStyle::Information);
        return true;
    } catch (const RuntimeError& error) {
        const std::string question =
            "The settings are there, but can't be read: " + error.description() +
            "\r\n\r\nTry again? Otherwise the console goes on with its defaults.";
        return dialogs.message_box(question, MessageStyle::YesNoQuestion) == MessageAnswer::No;
    }
}

}  // namespace

void start_up(Console& console) {
    MainForm& form = console.Form1;
    if (!console.started) {
        console.platform.form_windows.let_events_pass();
        console.started = true;
    }
    set_menu_icons(form);
    PositionHost(console);
    PositionMain(console);
    while (!settings_can_be_loaded(console)) continue;
    LoadSettings(console);  // the first touch of Form3, whose own load reads them as well
    set_column_widths(form);
    empty_charts(form);
    form.lblselectedTab.caption = form.TabStrip2.selected_caption();
    form.tmrAutoAudit.enabled = console.Form3->chkEnableschedule.value == 1;
    LoadAlertPatterns(console);
    LoadIgnoreList(console);
}

void activate_main_form(Console& console) {
    console.pending_request = {.text = "Patience Is Gold.. Please Wait For A Moment...",
                               .after = 1000};
    console.Form1.caption = "Tessarine " + version();
    // From here on AboutForm is loaded, hidden until it is asked for.
    console.AboutForm->Text1.text =
        "Product Information:\r\n"
        "Application Name:\tTessarine\r\n"
        "Version:\t" +
        version() + "\r\n";
}

}  // namespace tessarine
