#include "analysis/graphical_analysis.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "chrome/start_up.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

class GraphicalAnalysis : public testing::Test {
  protected:
    GraphicalAnalysis() { rig.run(start_up); }

    static void fill(ListControl& table, int icon, int rows) {
        for (int i = 0; i < rows; ++i) table.add_row("row", icon);
    }
    // The chart as words, after the count of a log.
    std::string graph(std::string_view log) {
        rig.run([log](Console& console) { LogAnalyze(console, log); });
        return graph();
    }
    std::string graph() { return drawn(rig.console.Form5->pie); }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(GraphicalAnalysis, CountsTheRowsOfALogByTheirPictures) {
    fill(form.SystemList, kIconError, 3);
    fill(form.SystemList, kIconInformation, 2);
    fill(form.SystemList, kIconWarning, 1);
    fill(form.SystemList, kIconAuditFailure, 5);
    fill(form.SystemList, 0, 5);
    fill(form.ApplicationList, kIconError, 4);
    fill(form.SecurityList, kIconAuditFailure, 1);
    fill(form.SecurityList, kIconAuditSuccess, 6);
    form.SystemList.row(1).set_fore_colour(0, rgb(255, 0, 0));
    EXPECT_EQ(graph("systemlog"), "bars Errors=3 Informations=2 Alerts=1");
    EXPECT_EQ(graph("seclog"), "bars Audit Failures=1 Audit Success=6");
    EXPECT_EQ(graph("SystemLog"), "bars Audit Failures=1 Audit Success=6");
    EXPECT_EQ(graph("applog"), "bars Errors=4 Informations=0 Alerts=0");
    rig.console.Form5->pie.type = ChartType::Pie;
    EXPECT_EQ(graph("systemlog"), "pie Errors=3 Informations=2 Alerts=1");
}

// KEEP(graph-counts-stop-at-32767)
TEST_F(GraphicalAnalysis, ACountStopsWhereItsNumberEndsAndTheOthersGoOn) {
    fill(form.SystemList, kIconError, 32'768);
    fill(form.SystemList, kIconWarning, 2);
    EXPECT_EQ(graph("systemlog"), "bars Errors=32767 Informations=0 Alerts=2");
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

// KEEP(graph-draws-warnings-blue)
TEST_F(GraphicalAnalysis, ColumnsAreRedGreenAndBlue) {
    graph("applog");
    std::vector<std::uint32_t> colours;
    for (const ChartSeries& column : rig.console.Form5->pie.series)
        colours.push_back(column.colour);
    EXPECT_EQ(colours, (std::vector{rgb(255, 0, 0), rgb(0, 192, 0), rgb(0, 0, 255)}));
}

TEST_F(GraphicalAnalysis, AViewStartsAnewWithTheSystemLogAndTheHostsName) {
    fill(form.SystemList, kIconError, 2);
    form.txtSelectedHost.text = "Host: PC1";
    std::string seen;
    rig.windows.when_shown(GraphForm::kId, [&](Console& console) {
        seen += console.Form5->caption + "|" + graph() + "\n";
        graph_log(console, EventLog::Security);
        console.Form5->pie.type = ChartType::Pie;
        console.Form5.unload();
    });
    rig.run(graphicalview);
    rig.run(graphicalview);
    const std::string once =
        "Grahpical Analysis - Host: PC1|bars Errors=2 Informations=0 Alerts=0\n";
    EXPECT_EQ(seen, once + once);
}

}  // namespace
}  // namespace tessarine
