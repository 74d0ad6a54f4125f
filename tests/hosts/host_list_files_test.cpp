#include "hosts/host_list_files.h"

#include <gmock/gmock.h>

#include "fakes/bench.h"
#include "fakes/drawn.h"
#include "hosts/preaudited_hosts.h"

namespace tessarine {
namespace {

using fakes::Bench;
using fakes::drawn;
using fakes::FileStep;

TEST(HostListFiles, LoadingTakesEveryLineThatIsNotEmpty) {
    Bench bench;
    bench.list_hosts({"OLD"});
    bench.files.put("/hosts.txt", "pc1\r\n\r\nPC2\r\n  \\\\pc3 # note\nb\xFCro\rlast");
    bench.dialogs.choose_file_next("/hosts.txt");
    bench.run(loadfrmlist);
    EXPECT_EQ(drawn(bench, "ListView1 st1"), R"(
ListView1:
  1|PC1|-
  1|PC2|-
  1|  \\PC3 # NOTE|-
  1|BÜRO|-
  1|LAST|-
st1: [][][][5 hosts][]
)");
    EXPECT_EQ(bench.dialogs.choices.at(0),
              (fakes::ScriptedDialogs::FileChoice{
                  "c:\\", "Text File (*.txt)=*.txt;All Files (*.*)=*.*;", ""}));
}

TEST(HostListFiles, CancelKeepsTheListAndFailuresShortenIt) {
    Bench bench;
    bench.list_hosts({"A", "B"});
    bench.dialogs.choose_file_next("");
    bench.run(loadfrmlist);
    EXPECT_EQ(drawn(bench, "ListView1 st1"),
              "\nListView1:\n  1|A|-\n  1|B|-\nst1: [][][][2 hosts][]\n");

    bench.files.put("/hosts.txt", "pc1\r\n");
    bench.files.fail_next(FileStep::Read, "/hosts.txt", "Device I/O error");
    for (const char* path : {"/hosts.txt", "/none.txt"}) {
        bench.dialogs.choose_file_next(path);
        bench.run(loadfrmlist);
        EXPECT_EQ(drawn(bench, "ListView1 st1"), "\nListView1:\nst1: [][][][0 hosts][]\n");
    }
    EXPECT_TRUE(bench.dialogs.messages.empty());
}

// KEEP(export-always-adds-txt)
TEST(HostListFiles, ExportWritesNamesUnderTheChosenNameAndTxt) {
    Bench bench;
    bench.run(exporthostlist);
    EXPECT_EQ(bench.console.Form1.st1.text(1), "Populate the hosts for exporting...");
    EXPECT_TRUE(bench.dialogs.choices.empty());

    bench.list_hosts({"PC1", "", "\\\\PC2"});
    bench.console.Form1.ListView1.row(1).set_report_icon(1, 8);
    bench.files.put("/list.txt.txt", "old and much longer than the new content");
    bench.dialogs.choose_file_next("/list.txt");
    bench.run(exporthostlist);
    EXPECT_EQ(bench.files.names(), "/list.txt.txt\n");
    EXPECT_EQ(bench.files.bytes("/list.txt.txt"), "PC1\r\n\r\n\\\\PC2\r\n");
    EXPECT_EQ(bench.console.Form1.st1.text(1), "Hosts list exported...");
    EXPECT_EQ(bench.dialogs.choices.at(0).title, "Save to..");

    bench.dialogs.choose_file_next("");
    bench.run(exporthostlist);
    EXPECT_EQ(bench.console.Form1.st1.text(1), "");
}

// KEEP(export-always-reports-success)
TEST(HostListFiles, ExportGoesOnOverEveryFailure) {
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Close}) {
        Bench bench;
        bench.list_hosts({"PC1", "PC2"});
        bench.files.fail_next(step, "", "refused");
        bench.dialogs.choose_file_next("/list");
        bench.run(exporthostlist);
        EXPECT_FALSE(bench.program.ended);
        EXPECT_EQ(bench.console.Form1.st1.text(1), "Hosts list exported...");
        if (step == FileStep::Open) {
            EXPECT_EQ(bench.files.names(), "");
        } else {
            EXPECT_THAT(bench.files.bytes("/list.txt"), testing::EndsWith("PC2\r\n"));
        }
        EXPECT_EQ(bench.files.open_files(), 0);
    }
}

TEST(BrowseForFile, ReadsItsListOfFilters) {
    Bench bench;
    const std::pair<const char*, const char*> lists[] = {
        {"", "All Files (*.*)=*.*;"},
        {"Text|*.txt", "Text=*.txt;All Files (*.*)=*.*;"},
        {"Text;*.txt|Logs|*.log;", "Text=*.txt;Logs=*.log;All Files (*.*)=*.*;"}};
    for (const auto& [list, filters] : lists) {
        bench.dialogs.choose_file_next("/chosen");
        EXPECT_EQ(BrowseForFile(bench.console, "c:\\", list, "Title"), "/chosen");
        EXPECT_EQ(bench.dialogs.choices.back().filters, filters);
    }
}

TEST(PreAuditedHosts, ComeFromLogsThatAreNotEmpty) {
    Bench bench;
    bench.list_hosts({"OLD"});
    const std::pair<const char*, const char*> files[] = {
        {"pc1_system.log", "x"},     {"PC2_system.log", "x"},
        {"PC1_security.log", "x"},   {"Pc1_APPLICATION.LOG", "x"},
        {"PC3_system.log", ""},      {"PC3_security.log", "x"},
        {"PC4_system.log", ""},      {"PC4_security.log", ""},
        {"notes.log", "x"},          {"a_system.log_security.log", "x"},
        {"notes.txt", "x"},          {"sub/PC5_system.log", "x"},
        {"B\xDCRO_system.log", "x"}, {"b\xFCro_security.log", "x"}};
    for (const auto& [name, bytes] : files)
        bench.files.put(std::string("/app/Data/") + name, bytes);
    bench.run(LoadPreAuditedHosts);
    EXPECT_EQ(drawn(bench, "ListView1 st1"), R"(
ListView1:
  1|pc1|-
  1|PC2|-
  1|PC3|-
  1|notes.log|-
  1|a|-
  1|BÜRO|-
st1: [][][][6 hosts][]
)");
}

TEST(PreAuditedHosts, EmptyAndMissingStoresClearTheList) {
    Bench bench;
    bench.list_hosts({"OLD"});
    EXPECT_THROW(LoadPreAuditedHosts(bench.console), RuntimeError);
    EXPECT_EQ(bench.console.Form1.ListView1.count(), 0);
    EXPECT_EQ(bench.console.Form1.st1.text(4), "");
    bench.files.make_folders("/app/Data");
    bench.run(LoadPreAuditedHosts);
    EXPECT_EQ(bench.console.Form1.st1.text(4), "0 hosts");
}

}  // namespace
}  // namespace tessarine
