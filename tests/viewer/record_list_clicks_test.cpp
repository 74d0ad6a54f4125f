#include "viewer/record_list_clicks.h"

#include <gtest/gtest.h>

#include <string>

#include "core/control_events.h"
#include "fakes/bench.h"
#include "fakes/drawn.h"
#include "viewer/event_lookup.h"

namespace tessarine {
namespace {

using fakes::Bench;
using Handler = void (*)(Console&, const EventDetails&);

void release(Bench& bench, Handler handler, int button) {
    bench.run([&](Console& console) { handler(console, {.button = button}); });
}

TEST(RecordListClicks, OpenTheMenuOnlyForARow) {
    const std::pair<ListControl MainForm::*, Handler> cases[] = {
        {&MainForm::SystemList, release_on_system_list},
        {&MainForm::ApplicationList, release_on_application_list},
        {&MainForm::SecurityList, release_on_security_list}};
    for (const auto& [list, handler] : cases) {
        Bench bench;
        ListControl& table = bench.console.Form1.*list;
        release(bench, handler, 2);
        table.add_row("Error", 4);
        release(bench, handler, 2);
        Bench::select(table, {1});
        release(bench, handler, 1);
        EXPECT_TRUE(bench.windows.menus.empty());
        release(bench, handler, 2);
        EXPECT_EQ(bench.windows.menus, std::vector<std::string>{"popmeup2"});
    }
}

// KEEP(tables-share-the-last-sorted-column)
TEST(RecordListClicks, SortTheOtherWayRoundWithEverySecondClick) {
    Bench bench;
    MainForm& form = bench.console.Form1;
    for (ListControl* table : {&form.SystemList, &form.ApplicationList})
        for (const char* code : {"9", "10", "1"}) table->add_row("x", 4).add_sub_item(code);
    const auto codes_after = [&](ListControl& table, Handler click, int column) {
        bench.run([&](Console& console) { click(console, {.column = column}); });
        std::string codes;
        for (int row = 1; row <= 3; ++row) codes += std::string(table.row(row).sub_item(1)) + " ";
        return codes;
    };
    const auto system = [&](int column) {
        return codes_after(form.SystemList, click_column_of_system_list, column);
    };
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(system(2), "9 10 1 ");
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(system(1), "1 10 9 ");
    EXPECT_EQ(system(2), "1 10 9 ");
    EXPECT_EQ(codes_after(form.ApplicationList, click_column_of_application_list, 2), "9 10 1 ");
}

TEST(AnalysisClicks, TellTheRowAndMarkTheTableForTheMenu) {
    const std::pair<ListControl MainForm::*, Handler> cases[] = {
        {&MainForm::ListView2, release_on_system_analysis},
        {&MainForm::ListView3, release_on_application_analysis},
        {&MainForm::ListView4, release_on_security_analysis}};
    int number = 2;
    for (const auto& [list, handler] : cases) {
        Bench bench;
        ListControl& table = bench.console.Form1.*list;
        release(bench, handler, 2);
        EXPECT_TRUE(bench.windows.menus.empty());
        bench.console.Form1.lblselectedTab2.caption = "before";
        table.add_row("7036", 0);
        for (const char* text : {"12", "Service Control Manager"}) table.row(1).add_sub_item(text);
        Bench::select(table, {1});
        release(bench, handler, 1);
        EXPECT_EQ(fakes::drawn(bench, "lblEventDetail lblselectedTab2"),
                  "\nlblEventDetail: \"Event Code: 7036, Event Source: Service Control Manager\"\n"
                  "lblselectedTab2: \"before\"\n");
        release(bench, handler, 2);
        EXPECT_EQ(bench.console.Form1.lblselectedTab2.caption, "list" + std::to_string(number++));
        EXPECT_EQ(bench.windows.menus, std::vector<std::string>{"popmeup3"});
        bench.run(lookupinquillard2);
        EXPECT_EQ(bench.shell.opened.at(0),
                  "http://www.tessarine.example/cgi-bin/tessarine.pl?EvtSrc=Service Control "
                  "Manager&EvtID=7036&ProdName=Windows Operating System&action=tessarine");
    }
}

// KEEP(lookup-values-go-unencoded)
TEST(EventLookup, TakesTheSelectedRowOfTheTableOnTop) {
    Bench bench;
    MainForm& form = bench.console.Form1;
    for (const char* field : {"x", "d", "t", "R&D", "1", "u", "c", "m"})
        field[0] == 'x' ? static_cast<void>(form.SecurityList.add_row(field, 6))
                        : form.SecurityList.row(1).add_sub_item(field);
    Bench::select(form.SecurityList, {1});
    form.lblselectedTab.caption = "Analysis Summary";
    bench.run(mslookup);
    EXPECT_TRUE(bench.shell.opened.empty());
    form.lblselectedTab.caption = " security log  ";
    bench.run(mslookup);
    ASSERT_EQ(bench.shell.opened.size(), 1U);
    EXPECT_NE(bench.shell.opened[0].find("?EvtSrc=R&D&EvtID=1&"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
