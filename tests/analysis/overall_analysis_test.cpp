#include "analysis/overall_analysis.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "app/events.h"
#include "chrome/start_up.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;
using Points = std::vector<std::int64_t>;

class OverallAnalysis : public testing::Test {
  protected:
    OverallAnalysis() { rig.run(start_up); }

    void put(const std::string& name, const std::string& bytes) {
        rig.files.put("/app/Data/" + name, bytes);
    }
    // The tables behind a click on the button, with these boxes ticked.
    std::string analysed(std::initializer_list<CheckBox*> boxes, const std::string& controls) {
        for (CheckBox* box : boxes) box->value = 1;
        rig.run([](Console& console) {
            find_event(control_events(), MainForm::kId, "Command3", EventKind::Click)
                ->routine(console, {});
        });
        return drawn(rig, controls);
    }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(OverallAnalysis, CountsACodeOverAllHostsWhereItWasFirstSeen) {
    put("PC1_system.log",
        "Error|d|t|SCM|7036|u|c|m\r\nInformation|d|t|W32|abc|u|c|m|rest\r\n"
        "Warning|d|t|Disk|7|u|c|");
    put("PC2_system.log",
        "Informationen|d|t|Net|ABC|u|c|m\r\nFehler|d|t|Dienst|7036|u|c|m\r\n"
        "warnung|d|t|x|70|u\r\nINFORMATION|d|t||\r\n");
    EXPECT_EQ(analysed({&form.Check4}, "ListView2 ListView3 ListView4"), R"(
ListView2:
  4|7036|2|SCM
  3|abc|2|W32
  2|7|1|Disk
  2|70|1|x
  3||1|
ListView3:
ListView4:
)");
    EXPECT_EQ(form.sysPie.points, (Points{2, 3, 2}));
}

TEST_F(OverallAnalysis, GivesEachLogTheTypesOfItsOwn) {
    const std::string types =
        "odd|d|t|s|1|u|c|m\r\nWarning|d|t|s|2|u|c|m\r\nAudit Failure|d|t|s|3|u|c|m\r\n"
        "\xDC"
        "BERWACHUNG ERFOLGREICH|d|t|s|4|u|c|m\r\nInformation|d|t|s|5|u|c|m\r\n"
        "\xFC"
        "berwachungsfehler|d|t|s|6|u|c|m\r\n";
    put("PC1_application.log", types);
    put("PC1_security.log", types);
    EXPECT_EQ(analysed({&form.Check5, &form.Check6}, "ListView3 ListView4"), R"(
ListView3:
  0|1|1|s
  2|2|1|s
  2|3|1|s
  2|4|1|s
  3|5|1|s
  3|6|1|s
ListView4:
  0|1|1|s
  0|2|1|s
  5|3|1|s
  6|4|1|s
  6|5|1|s
  5|6|1|s
)");
    EXPECT_EQ(form.appPie.points, (Points{0, 1, 1}));
    EXPECT_EQ(form.SecPie.points, (Points{2, 1}));
    EXPECT_EQ(form.sysPie.points, (Points{0, 0, 0}));
}

// KEEP(unknown-types-take-the-icon-before) KEEP(charts-go-by-first-letters)
TEST_F(OverallAnalysis, CountsUnknownTypesUnderTheIconBeforeThem) {
    put("PC1_system.log", "Error|d|t|s|1|u|c|m\r\n");
    put("PC2_system.log",
        "Infos|d|t|s|2|u|c|m\r\n error|d|t|s|3|u|c|m\r\nWARP|d|t|s|4\r\nErrors, "
        "and very many of them|d|t|s|5\r\n");
    EXPECT_EQ(analysed({&form.Check4}, "ListView2"), R"(
ListView2:
  4|1|1|s
  4|2|1|s
  4|3|1|s
  4|4|1|s
  4|5|1|s
)");
    EXPECT_EQ(form.sysPie.points, (Points{2, 1, 1}));
}

// KEEP(lines-without-a-code-count-for-all-codes)
TEST_F(OverallAnalysis, CountsALineWithoutACodeOnEveryRowThere) {
    put("PC1_security.log",
        "broken off\r\naudit success|d|t|s|1|u|c|m\r\naudit failure|and\nof a message\r"
        "Audit Success|d|t|s|2|u|c|m\r\n\r\nodd|d|t|s\r\nodd|d|t|s|3\r\n");
    EXPECT_EQ(analysed({&form.Check6}, "ListView4"), R"(
ListView4:
  6|1|5|s
  6|2|3|s
  6|3|1|s
)");
    EXPECT_EQ(form.SecPie.points, (Points{1, 2}));
}

// KEEP(analysis-takes-names-without-underscore)
TEST_F(OverallAnalysis, GoesThroughAllFilesWhoseNamesEndInTheLogsWord) {
    put("PC2-SYSTEM.LOG", "error|d|t|s|1|u|c|m\r\n");
    put("PC1_system.log", "error|d|t|s|2|u|c|m\r\n");
    put("empty_system.log", "");
    put("PC1_system.log.old", "error|d|t|s|3|u|c|m\r\n");
    form.pbar1.set_maximum(9);  // as an audit leaves it that fails
    form.pbar1.set_value(5);
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(analysed({&form.Check4}, "ListView2 pbar1"), R"(
ListView2:
  4|1|1|s
  4|2|1|s
pbar1: 0/3
)");
    EXPECT_EQ(history.lines,
              "3: 1/3 records processed\n3: 2/3 records processed\n3: 3/3 records processed\n"
              "3: \n");
    EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
}

TEST_F(OverallAnalysis, EndsAFileThatCannotBeReadFurtherAndGoesOn) {
    for (const char* name : {"A_system.log", "B_system.log", "C_system.log"})
        put(name, "error|d|t|" + std::string(name) + "|1|u|c|m\r\n");
    rig.files.fail_next(fakes::FileStep::Open, "/app/Data/A_system.log", "Denied");
    rig.files.fail_next(fakes::FileStep::Read, "/app/Data/B_system.log", "Broken");
    EXPECT_EQ(analysed({&form.Check4}, "ListView2"), "\nListView2:\n  4|1|1|C_system.log\n");
    EXPECT_EQ(rig.files.open_files(), 0);
}

TEST_F(OverallAnalysis, ReplacesWhatTheTickedLogsHadAndLeavesTheOthers) {
    put("PC1_system.log", "error|d|t|s|1|u|c|m\r\n");
    put("PC1_security.log", "audit success|d|t|s|2|u|c|m\r\n");
    form.sysPie.type = ChartType::Pie;
    analysed({&form.Check4, &form.Check6}, "ListView2");
    form.Check6.value = 0;
    rig.files.remove("/app/Data/PC1_system.log");
    rig.files.remove("/app/Data/PC1_security.log");
    // With no file the bar's end stays where it was.
    EXPECT_EQ(analysed({}, "ListView2 ListView4 pbar1 st1"), R"(
ListView2:
ListView4:
  6|2|1|s
pbar1: 0/1
st1: [][][][][]
)");
    EXPECT_EQ(form.sysPie.points, (Points{0, 0, 0}));
    EXPECT_EQ(form.sysPie.type, ChartType::Pie);
    EXPECT_EQ(form.SecPie.points, (Points{0, 1}));
}

TEST_F(OverallAnalysis, ShowsTheSummaryAlsoWithoutABoxOrAStore) {
    put("PC1_system.log", "error|d|t|s|1|u|c|m\r\n");
    EXPECT_EQ(analysed({}, "ListView2 pbar1 lblselectedTab"),
              "\nListView2:\npbar1: 0/100\nlblselectedTab: \"Analysis Summary\"\n");
    EXPECT_EQ(form.TabStrip2.selected, 4);
    EXPECT_TRUE(form.MainFrame[3].visible);
    rig.console.Form3->txtLogPath.text = "/elsewhere";
    EXPECT_EQ(analysed({&form.Check4}, "ListView2 pbar1"), "\nListView2:\npbar1: 0/100\n");
}

TEST_F(OverallAnalysis, TakesTheLogsWordInAnyCaseAndNoOther) {
    put("PC1_system.log", "error|d|t|s|1|u|c|m\r\n");
    const auto rows = [&](const char* word) {
        rig.run([&](Console& console) { OverAllAnalysis(console, word); });
        return form.ListView2.count();
    };
    EXPECT_EQ(rows("setup"), 0);
    EXPECT_EQ(rows("SYSTEM"), 1);
    EXPECT_EQ(rows("setup"), 1);
}

// KEEP(analysis-progress-stops-at-32767)
TEST_F(OverallAnalysis, AnalysesMoreFilesThanItsBarCounts) {
    for (int i = 0; i < 32'768; ++i) put("PC" + std::to_string(i) + "_system.log", "");
    put("PC_system.log", "error|d|t|s|1|u|c|m\r\n");
    form.Check4.value = 1;
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(analysed({}, "ListView2 pbar1"), "\nListView2:\n  4|1|1|s\npbar1: 0/32767\n");
    EXPECT_TRUE(history.lines.ends_with("3: 32767/32767 records processed\n3: \n"));
}

}  // namespace
}  // namespace tessarine
