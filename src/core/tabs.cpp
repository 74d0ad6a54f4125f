#include "core/tabs.h"

#include <cstddef>

#include "core/console_state.h"
#include "core/icons.h"
#include "core/log_facts.h"

namespace tessarine {
namespace {

// The pages lie on one another, so all but that of the first tab are out of sight.
template <class Pages>
void stack(Pages& pages, int& shown_tab, TabStrip& strip) {
    for (Frame& page : pages) page.visible = &page == &pages.front();
    shown_tab = strip.selected = 1;
}

// Takes the page of the tab that was left away and shows the one of the selected tab.
template <class Pages>
void turn_page(Pages& pages, int& shown_tab, const TabStrip& strip) {
    pages[static_cast<std::size_t>(shown_tab - 1)].visible = false;
    shown_tab = strip.selected;
    pages[static_cast<std::size_t>(shown_tab - 1)].visible = true;
}

}  // namespace

void PositionHost(Console& console) {
    MainForm& form = console.Form1;
    stack(form.PosFrame1, form.host_tab, form.TabStrip1);
}

void PositionMain(Console& console) {
    MainForm& form = console.Form1;
    stack(form.MainFrame, form.main_tab, form.TabStrip2);
    click_tab_of_right_strip(console);
    for (const EventLog log : kEventLogs) tab_of(form, log).image = kTabPlain;
}

void position_settings(SettingsForm& form) {
    stack(form.SetFrame, form.settings_tab, form.TabStrip1);
}

void click_tab_of_settings(Console& console) {
    SettingsForm& form = console.Form3.get();
    turn_page(form.SetFrame, form.settings_tab, form.TabStrip1);
}

void click_tab_of_left_strip(Console& console) {
    turn_page(console.Form1.PosFrame1, console.Form1.host_tab, console.Form1.TabStrip1);
}

void click_tab_of_right_strip(Console& console) {
    MainForm& form = console.Form1;
    turn_page(form.MainFrame, form.main_tab, form.TabStrip2);
    form.lblselectedTab.caption = form.TabStrip2.selected_caption();
    // The boxes of the table on top; on the summary, a frame that covers them.
    for (const LogFacts& facts : kLogFacts)
        (form.*facts.boxes).visible = facts.tab == form.main_tab;
    form.HideFrames.visible = form.main_tab == kSummaryTab;
}

}  // namespace tessarine
