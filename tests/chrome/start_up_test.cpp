#include "chrome/start_up.h"

#include <gtest/gtest.h>

#include <set>

#include "chrome/help_menu.h"
#include "chrome/view_menu.h"
#include "core/menus.h"
#include "core/tabs.h"
#include "fakes/bench.h"
#include "fakes/drawn.h"

namespace tessarine {
namespace {

using fakes::Bench;
using fakes::drawn;

std::string visible_pages(MainForm& form) {
    std::string text;
    for (const Frame& page : form.PosFrame1) text += page.visible ? '1' : '0';
    text += ' ';
    for (const Frame& page : form.MainFrame) text += page.visible ? '1' : '0';
    text += ' ';
    for (const Frame* frame : {&form.SysFilter, &form.AppFilter, &form.SecFilter, &form.HideFrames})
        text += frame->visible ? '1' : '0';
    return text;
}

TEST(StartUp, CleanMachineStartsEmpty) {
    Bench bench;
    bench.console.Form1.ListView1.width = 3000;
    bench.console.Form1.SystemList.width = 8000;
    bench.run(start_up);
    EXPECT_FALSE(bench.program.ended);
    EXPECT_EQ(drawn(bench, "TabStrip1 TabStrip2 lblselectedTab st1 pbar1 ListView1 AlertList"), R"(
TabStrip1: [*Hosts][Search/Analysis][Alert/Ignore]
TabStrip2: [* System Log  #1][ Application Log#1][ Security Log  #1][Analysis Summary]
lblselectedTab: " System Log  "
st1: [][][][][]
pbar1: 0/100 hidden
ListView1:
AlertList:
)");
    EXPECT_EQ(visible_pages(bench.console.Form1), "100 1000 1000");
    EXPECT_EQ(bench.files.names(), "/app/alertpatterns.txt\n/app/ignorelist.txt\n");
    EXPECT_FALSE(bench.files.folder_exists("/app/Data"));
    EXPECT_TRUE(bench.settings.written.empty());
    EXPECT_FALSE(bench.console.Form1.tmrAutoAudit.enabled);
    EXPECT_TRUE(bench.console.Form3.loaded());
    EXPECT_FALSE(bench.console.Form3->visible);
    EXPECT_EQ(bench.console.Form1.ListView1.columns[0].width, 1500);
    EXPECT_EQ(bench.console.Form1.SystemList.columns[7].width, 1000);
    EXPECT_EQ(bench.console.Form1.SecPie.points, (std::vector<std::int64_t>{0, 0}));
}

TEST(StartUp, SettingsAndCodeListsAreInForceAtOnce) {
    Bench bench;
    bench.settings.set("enscheaudit", "true");
    bench.files.put("/app/alertpatterns.txt", "4625\r\n\r\n");
    bench.files.put("/app/ignorelist.txt", "7036\r\n");
    bench.run(start_up);
    EXPECT_TRUE(bench.console.Form1.tmrAutoAudit.enabled);
    EXPECT_EQ(drawn(bench, "AlertList IgnoreList"), R"(
AlertList:
  0|4625
IgnoreList:
  0|7036
)");
}

TEST(StartUp, ScreenEventsPassTheFirstTimeOnly) {
    Bench bench;
    bench.run(start_up);
    bench.run(start_up);
    EXPECT_EQ(bench.windows.yields, 1);
}

TEST(StartUp, ActivationSetsCaptionAndAboutText) {
    Bench bench;
    bench.run(activate_main_form);
    EXPECT_EQ(bench.console.Form1.caption, "Tessarine 1.3.0");
    const std::string about =
        "Product Information:\r\nApplication Name:\tTessarine\r\nVersion:\t1.3.0\r\n";
    EXPECT_EQ(bench.console.AboutForm->Text1.text, about);

    bench.windows.when_shown(FormId::AboutForm, [&](Console& console) {
        EXPECT_EQ(console.AboutForm->Text1.text, about);
        console.AboutForm.unload();
    });
    bench.run(show_about);
    bench.run(activate_main_form);
    EXPECT_EQ(bench.console.AboutForm->Text1.text, about);
}

TEST(MainWindow, TabsTurnThePagesOfTheirOwnStrip) {
    Bench bench;
    bench.run(start_up);
    MainForm& form = bench.console.Form1;
    form.TabStrip1.selected = 3;
    bench.run(click_tab_of_left_strip);
    EXPECT_EQ(visible_pages(form), "001 1000 1000");
    const struct {
        int tab;
        const char* pages;
        const char* marker;
    } clicks[] = {{3, "001 0010 0010", " Security Log  "},
                  {2, "001 0100 0100", " Application Log"},
                  {4, "001 0001 0001", "Analysis Summary"},
                  {1, "001 1000 1000", " System Log  "}};
    for (const auto& click : clicks) {
        form.TabStrip2.selected = click.tab;
        bench.run(click_tab_of_right_strip);
        EXPECT_EQ(visible_pages(form), click.pages);
        EXPECT_EQ(form.lblselectedTab.caption, click.marker);
    }
}

TEST(MainWindow, ViewMenusFlipAndAreStored) {
    Bench bench;
    for (int click = 0; click < 2; ++click)
        for (auto* routine : {highlightpatt, hideignore, shogrid}) bench.run(routine);
    EXPECT_EQ(bench.settings.written,
              (std::vector<std::string>{"highpat=true", "hideignore=true", "showgrid=true",
                                        "highpat=false", "hideignore=false", "showgrid=false"}));
    bench.run(shogrid);
    MainForm& form = bench.console.Form1;
    EXPECT_TRUE(form.SystemList.grid_lines && form.ApplicationList.grid_lines &&
                form.SecurityList.grid_lines && form.ListView1.grid_lines);
    EXPECT_FALSE(form.ListView2.grid_lines);
    EXPECT_EQ(drawn(bench, "shogrid highlightpatt"), "\nshogrid: checked\nhighlightpatt:\n");
}

TEST(MainWindow, HelpIsOpenedAndExitUnloadsEverything) {
    Bench bench;
    bench.run(open_help);
    EXPECT_EQ(bench.shell.opened, std::vector<std::string>{"/app/Tessarine.chm"});
    bench.run(activate_main_form);
    bench.console.Form3.get();
    bench.console.Form4.get();
    bench.run(end_console);
    EXPECT_TRUE(bench.program.ended);
    EXPECT_FALSE(bench.console.Form1.loaded || bench.console.Form3.loaded() ||
                 bench.console.Form4.loaded() || bench.console.AboutForm.loaded());
    EXPECT_TRUE(bench.dialogs.messages.empty() && bench.settings.written.empty());
}

TEST(Menus, EntriesHaveTheIconsOfTheirKeys) {
    Bench bench;
    MainForm& form = bench.console.Form1;
    set_menu_icons(form);
    std::set<std::string_view> names;
    for (const MenuTableRow& row : kMenuTable) {
        if (row.entry == nullptr) continue;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        const int icon = (form.*(row.entry)).icon;
        const auto expected = row.icon_key.empty() ? std::string_view() : row.icon_key;
        EXPECT_EQ(icon < 0 ? std::string_view() : kMenuImages[static_cast<std::size_t>(icon)],
                  expected)
            << row.name;
    }
    for (const ToolbarButton& button : kToolbar) {
        EXPECT_EQ(&button - kToolbar.data() + 1, button.index);
        const bool raises_an_entry = !button.raises.empty() && button.raises != "print";
        EXPECT_TRUE(!raises_an_entry || names.contains(button.raises)) << button.raises;
    }
}

}  // namespace
}  // namespace tessarine
