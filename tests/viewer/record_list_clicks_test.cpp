#include "viewer/record_list_clicks.h"

#include <gtest/gtest.h>

#include <string>

#include "core/control_events.h"
#include "core/log_facts.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "viewer/event_lookup.h"

namespace tessarine {
namespace {

using fakes::Rig;
using Handler = void (*)(Console&, EventLog, const InputDetails&);

void release(Rig& rig, Handler handler, EventLog log, MouseButton button) {
    rig.run([&](Console& console) { handler(console, log, {.button = button}); });
}

TEST(RecordListClicks, OpenTheMenuOnlyForARow) {
    for (const EventLog log : kEventLogs) {
        Rig rig;
        ListControl& table = table_of(rig.console.Form1, log);
        release(rig, release_on_events, log, MouseButton::Right);
        table.add_row("Error", 4);
        release(rig, release_on_events, log, MouseButton::Left);
        EXPECT_TRUE(rig.windows.menus.empty());
        release(rig, release_on_events, log, MouseButton::Right);
        EXPECT_EQ(rig.windows.menus, std::vector<std::string>{"popmeup2"});
    }
}

// KEEP(tables-share-the-last-sorted-column)
TEST(RecordListClicks, SortTheOtherWayRoundWithEverySecondClick) {
    Rig rig;
    MainForm& form = rig.console.Form1;
    for (ListControl* table : {&form.SystemList, &form.ApplicationList})
        for (const char* code : {"9", "10", "1"}) table->add_row("x", 4).add_sub_item(code);
    const auto codes_after = [&](EventLog log, int column) {
        rig.run([&](Console& console) { click_column(console, log, {.column = column}); });
        std::string codes;
        for (int row = 1; row <= 3; ++row)
            codes += std::string(table_of(form, log).row(row).sub_item(1)) + " ";
        return codes;
    };
    const auto system = [&](int column) { return codes_after(EventLog::System, column); };
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(system(2), "9 10 1 ");
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(system(1), "1 10 9 ");
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(codes_after(EventLog::Application, 2), "9 10 1 ");
}

TEST(AnalysisClicks, TellTheRowAndMarkTheTableForTheMenu) {
    int number = 2;
    for (const EventLog log : kEventLogs) {
        Rig rig;
        ListControl& table = analysis_of(rig.console.Form1, log);
        rig.console.Form1.lblselectedTab2.caption = "before";
        release(rig, release_on_analysis, log, MouseButton::Right);
        EXPECT_TRUE(rig.windows.menus.empty());
        EXPECT_EQ(fakes::drawn(rig, "lblEventDetail lblselectedTab2"),
                  "\nlblEventDetail: \"--\"\nlblselectedTab2: \"before\"\n");
        table.add_row("7036", 0);
        for (const char* text : {"12", "Service Control Manager"}) table.row(1).add_sub_item(text);
        Rig::select(table, {1});
        release(rig, release_on_analysis, log, MouseButton::Left);
        EXPECT_EQ(fakes::drawn(rig, "lblEventDetail lblselectedTab2"),
                  "\nlblEventDetail: \"Event Code: 7036, Event Source: Service Control Manager\"\n"
                  "lblselectedTab2: \"before\"\n");
        release(rig, release_on_analysis, log, MouseButton::Right);
        EXPECT_EQ(rig.console.Form1.lblselectedTab2.caption, "list" + std::to_string(number++));
        EXPECT_EQ(rig.windows.menus, std::vector<std::string>{"popmeup3"});
        rig.run(lookupinquillard2);
        EXPECT_EQ(rig.shell.opened.at(0),
                  "http://www.tessarine.example/cgi-bin/tessarine.pl?EvtSrc=Service Control "
                  "Manager&EvtID=7036&ProdName=Windows Operating System&action=tessarine");
    }
}

// KEEP(lookup-values-go-unencoded)
TEST(EventLookup, TakesTheSelectedRowOfTheTableOnTop) {
    Rig rig;
    MainForm& form = rig.console.Form1;
    for (const char* field : {"x", "d", "t", "R&D", "1", "u", "c", "m"})
        field[0] == 'x' ? static_cast<void>(form.SecurityList.add_row(field, 6))
                        : form.SecurityList.row(1).add_sub_item(field);
    Rig::select(form.SecurityList, {1});
    form.lblselectedTab.caption = "Analysis Summary";
    rig.run(mslookup);
    EXPECT_TRUE(rig.shell.opened.empty());
    form.lblselectedTab.caption = " security log  ";
    rig.run(mslookup);
    ASSERT_EQ(rig.shell.opened.size(), 1U);
    EXPECT_NE(rig.shell.opened[0].find("?EvtSrc=R&D&EvtID=1&"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
