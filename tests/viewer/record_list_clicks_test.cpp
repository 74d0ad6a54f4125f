#include "viewer/record_list_clicks.h"

#include <gtest/gtest.h>

#include "fakes/bench.h"

namespace tessarine {
namespace {

TEST(RecordListClicks, OpenTheMenuOnlyForARow) {
    const struct {
        ListControl MainForm::*table;
        void (*release)(Console&);
    } cases[] = {{&MainForm::SystemList, release_on_system_list},
                 {&MainForm::ApplicationList, release_on_application_list},
                 {&MainForm::SecurityList, release_on_security_list}};
    for (const auto& each : cases) {
        fakes::Bench bench;
        ListControl& table = bench.console.Form1.*each.table;
        bench.run(each.release);
        table.add_row("Error", 4);
        bench.run(each.release);
        EXPECT_TRUE(bench.windows.menus.empty());
        fakes::Bench::select(table, {1});
        bench.run(each.release);
        EXPECT_EQ(bench.windows.menus, std::vector<std::string>{"popmeup2"});
    }
}

}  // namespace
}  // namespace tessarine
