#include "core/start_up.h"

#include <string>

#include "core/console_state.h"
#include "core/menus.h"
#include "core/settings_store.h"
#include "core/text.h"
#include "patterns/code_lists.h"
#include "platform/program.h"
#include "platform/shell.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

std::string version() {
    return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

// The pages lie on one another, so all but the first are out of sight.
template <class Pages>
void stack(Pages& pages) {
    for (Frame& page : pages) page.visible = &page == &pages.front();
}

// Takes the page of the tab that was left away and shows the one of the selected tab.
template <class Pages>
void turn_page(Pages& pages, int& shown_tab, const TabStrip& strip) {
    pages[static_cast<std::size_t>(shown_tab - 1)].visible = false;
    shown_tab = strip.selected;
    pages[static_cast<std::size_t>(shown_tab - 1)].visible = true;
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

void toggle(Console& console, MenuEntry& entry, const std::string& setting) {
    entry.checked = !entry.checked;
    WriteValue(console, setting, ValueType::Text, entry.checked ? "true" : "false");
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
    LoadSettings(console);  // the first touch of Form3, whose own load reads them as well
    set_column_widths(form);
    empty_charts(form);
    form.lblselectedTab.caption = form.TabStrip2.selected_caption();
    form.tmrAutoAudit.enabled = console.Form3->chkEnableschedule.value == 1;
    LoadAlertPatterns(console);
    LoadIgnoreList(console);
}

void PositionHost(Console& console) {
    MainForm& form = console.Form1;
    stack(form.PosFrame1);
    form.host_tab = 1;
    form.TabStrip1.selected = 1;
}

void PositionMain(Console& console) {
    MainForm& form = console.Form1;
    stack(form.MainFrame);
    form.main_tab = 1;
    form.TabStrip2.selected = 1;
    click_tab_of_right_strip(console);
    for (int tab = 1; tab <= 3; ++tab) form.TabStrip2.tab(tab).image = 1;
}

void activate_main_form(Console& console) {
    console.Form1.caption = "Tessarine " + version();
    // From here on AboutForm is loaded, hidden until it is asked for.
    console.AboutForm->Text1.text =
        "Product Information:\r\n"
        "Application Name:\tTessarine\r\n"
        "Version:\t" +
        version() + "\r\n";
}

void click_tab_of_left_strip(Console& console) {
    turn_page(console.Form1.PosFrame1, console.Form1.host_tab, console.Form1.TabStrip1);
}

void click_tab_of_right_strip(Console& console) {
    MainForm& form = console.Form1;
    turn_page(form.MainFrame, form.main_tab, form.TabStrip2);
    const std::string& caption = form.TabStrip2.selected_caption();
    form.lblselectedTab.caption = caption;
    // The boxes of the table on top; on the summary, a frame that covers them.
    form.SysFilter.visible = same_text(caption, " System Log  ");
    form.AppFilter.visible = same_text(caption, " Application Log");
    form.SecFilter.visible = same_text(caption, " Security Log  ");
    form.HideFrames.visible = same_text(caption, "Analysis Summary");
}

void highlightpatt(Console& console) {
    toggle(console, console.Form1.highlightpatt, "highpat");
}

void hideignore(Console& console) {
    toggle(console, console.Form1.hideignore, "hideignore");
}

void shogrid(Console& console) {
    MainForm& form = console.Form1;
    for (ListControl* list :
         {&form.SystemList, &form.ApplicationList, &form.SecurityList, &form.ListView1})
        list->grid_lines = !form.shogrid.checked;
    toggle(console, form.shogrid, "showgrid");
}

void open_help(Console& console) {
    console.platform.shell.open(
        path_in(console.platform.program.application_directory(), "Tessarine.chm"));
}

void show_about(Console& console) {
    console.AboutForm.get();
    console.platform.form_windows.show_modal(FormId::AboutForm);
}

void exit_console(Console& console) {
    end_console(console);
}

}  // namespace tessarine
