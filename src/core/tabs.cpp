#include "core/tabs.h"

#include <cstddef>
#include <string>

#include "core/console_state.h"
#include "core/text.h"

namespace tessarine {
namespace {

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

}  // namespace

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

}  // namespace tessarine
