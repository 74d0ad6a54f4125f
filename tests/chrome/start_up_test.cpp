#include "chrome/start_up.h"

#include <gtest/gtest.h>

#include <set>

#include "chrome/help_menu.h"
#include "chrome/view_menu.h"
#include "core/menus.h"
#include "core/tabs.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

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
    Rig rig;
    rig.console.Form1.ListView1.width = 3000;
    rig.console.Form1.SystemList.width = 8000;
    rig.run(start_up);
    EXPECT_FALSE(rig.program.ended);
    EXPECT_EQ(drawn(rig, "TabStrip1 TabStrip2 lblselectedTab st1 pbar1 ListView1 AlertList"), R"(
TabStrip1: [*Hosts][Search/Analysis][Alert/Ignore]
TabStrip2: [* System Log  #1][ Application Log#1][ Security Log  #1][Analysis Summary]
lblselectedTab: " System Log  "
st1: [][][][][]
pbar1: 0/100 hidden
ListView1:
AlertList:
)");
    EXPECT_EQ(visible_pages(rig.console.Form1), "100 1000 1000");
    EXPECT_EQ(rig.files.names(), "/app/alertpatterns.txt\n/app/ignorelist.txt\n");
    EXPECT_FALSE(rig.files.folder_exists("/app/Data"));
    EXPECT_TRUE(rig.settings.written.empty());
    EXPECT_FALSE(rig.console.Form1.tmrAutoAudit.enabled);
    EXPECT_TRUE(rig.console.Form3.loaded());
    EXPECT_FALSE(rig.console.Form3->visible);
    EXPECT_EQ(rig.console.Form1.ListView1.columns[0].width, 1500);
    EXPECT_EQ(rig.console.Form1.SystemList.columns[7].width, 1000);
    EXPECT_EQ(rig.console.Form1.SecPie.points, (std::vector<std::int64_t>{0, 0}));
}

TEST(StartUp, SettingsThatCantBeReadAreAskedAboutBeforeAnyIsLoaded) {
    Rig rig;
    rig.settings.set("AuditOpt", "append");
    rig.settings.unreadable = "Device I/O error";
    rig.settings.times_unreadable = 2;
    rig.settings.note = "Others could read the settings.";
    rig.dialogs.answer_next(MessageAnswer::Yes);
    rig.dialogs.answer_next(MessageAnswer::Yes);
    rig.run(start_up);
    ASSERT_EQ(rig.dialogs.messages.size(), 3u);
    EXPECT_EQ(rig.dialogs.messages[0].text,
              "The settings are there, but can't be read: Device I/O error\r\n\r\nTry again? "
              "Otherwise the console goes on with its defaults.");
    EXPECT_EQ(rig.dialogs.messages[2].text, "Others could read the settings.");
    EXPECT_TRUE(rig.console.Form3->optAppend.value);

    Rig given_up;
    given_up.settings.unreadable = "Device I/O error";
    given_up.dialogs.answer_next(MessageAnswer::No);
    given_up.run(start_up);
    EXPECT_EQ(given_up.dialogs.messages.size(), 1u);
    EXPECT_FALSE(given_up.program.ended);
}

TEST(StartUp, SettingsAndCodeListsAreInForceAtOnce) {
    Rig rig;
    rig.settings.set("enscheaudit", "true");
    rig.files.put("/app/alertpatterns.txt", "4625\r\n\r\n");
    rig.files.put("/app/ignorelist.txt", "7036\r\n");
    rig.run(start_up);
    EXPECT_TRUE(rig.console.Form1.tmrAutoAudit.enabled);
    EXPECT_EQ(drawn(rig, "AlertList IgnoreList"), R"(
AlertList:
  0|4625
IgnoreList:
  0|7036
)");
}

TEST(StartUp, ScreenEventsPassTheFirstTimeOnly) {
    Rig rig;
    rig.run(start_up);
    rig.run(start_up);
    EXPECT_EQ(rig.windows.yields, 1);
}

TEST(StartUp, ActivationSetsCaptionAndAboutText) {
    Rig rig;
    rig.run(activate_main_form);
    EXPECT_EQ(rig.console.Form1.caption, "Tessarine 1.3.0");
    const std::string about =
        "Product Information:\r\nApplication Name:\tTessarine\r\nVersion:\t1.3.0\r\n";
    EXPECT_EQ(rig.console.AboutForm->Text1.text, about);

    rig.windows.when_shown(AboutForm::kId, [&](Console& console) {
        EXPECT_EQ(console.AboutForm->Text1.text, about);
        console.AboutForm.unload();
    });
    rig.run(show_about);
    rig.run(activate_main_form);
    EXPECT_EQ(rig.console.AboutForm->Text1.text, about);
}

TEST(MainWindow, TabsTurnThePagesOfTheirOwnStrip) {
    Rig rig;
    rig.run(start_up);
    MainForm& form = rig.console.Form1;
    form.TabStrip1.selected = 3;
    rig.run(click_tab_of_left_strip);
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
        rig.run(click_tab_of_right_strip);
        EXPECT_EQ(visible_pages(form), click.pages);
        EXPECT_EQ(form.lblselectedTab.caption, click.marker);
    }
}

TEST(MainWindow, ViewMenusFlipAndAreStored) {
    Rig rig;
    for (int click = 0; click < 2; ++click)
        for (auto* routine : {highlightpatt, hideignore, shogrid}) rig.run(routine);
    EXPECT_EQ(rig.settings.written,
              (std::vector<std::string>{"highpat=true", "hideignore=true", "showgrid=true",
                                        "highpat=false", "hideignore=false", "showgrid=false"}));
    rig.run(shogrid);
    MainForm& form = rig.console.Form1;
    EXPECT_TRUE(form.SystemList.grid_lines && form.ApplicationList.grid_lines &&
                form.SecurityList.grid_lines && form.ListView1.grid_lines);
    EXPECT_FALSE(form.ListView2.grid_lines);
    EXPECT_EQ(drawn(rig, "shogrid highlightpatt"), "\nshogrid: checked\nhighlightpatt:\n");
}

TEST(MainWindow, HelpIsOpenedAndExitUnloadsEverything) {
    Rig rig;
    rig.run(open_help);
    EXPECT_EQ(rig.shell.opened, std::vector<std::string>{"/app/Tessarine.chm"});
    rig.run(activate_main_form);
    rig.console.Form3.get();
    rig.console.Form4.get();
    rig.run(end_console);
    EXPECT_TRUE(rig.program.ended);
    EXPECT_FALSE(rig.console.Form1.loaded || rig.console.Form3.loaded() ||
                 rig.console.Form4.loaded() || rig.console.AboutForm.loaded());
    EXPECT_TRUE(rig.dialogs.messages.empty() && rig.settings.written.empty());
}

TEST(Menus, EntriesHaveTheIconsOfTheirKeys) {
    Rig rig;
    MainForm& form = rig.console.Form1;
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
