#include "hosts/host_list_files.h"

#include <gmock/gmock.h>

#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "hosts/preaudited_hosts.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::FileStep;
using fakes::Rig;

TEST(HostListFiles, LoadingTakesEveryLineThatIsNotEmpty) {
    Rig rig;
    rig.list_hosts({"OLD"});
    rig.files.put("/hosts.txt", "pc1\r\n\r\nPC2\r\n  \\\\pc3 # note\nb\xFCro\rlast");
    rig.dialogs.choose_file_next("/hosts.txt");
    rig.run(loadfrmlist);
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
ListView1:
  1|PC1|-
  1|PC2|-
  1|  \\PC3 # NOTE|-
  1|BÜRO|-
  1|LAST|-
st1: [][][][5 hosts][]
)");
    EXPECT_EQ(rig.dialogs.choices.at(0),
              (fakes::ScriptedDialogs::FileChoice{
                  FilePurpose::Open, "c:\\", "Text File (*.txt)=*.txt;All Files (*.*)=*.*;", ""}));
}

TEST(HostListFiles, CancelKeepsTheListAndFailuresShortenIt) {
    Rig rig;
    rig.list_hosts({"A", "B"});
    rig.dialogs.choose_file_next("");
    rig.run(loadfrmlist);
    EXPECT_EQ(drawn(rig, "ListView1 st1"),
              "\nListView1:\n  1|A|-\n  1|B|-\nst1: [][][][2 hosts][]\n");

    rig.files.put("/hosts.txt", "pc1\r\n");
    rig.files.fail_next(FileStep::Read, "/hosts.txt", "Device I/O error");
    for (const char* path : {"/hosts.txt", "/none.txt"}) {
        rig.dialogs.choose_file_next(path);
        rig.run(loadfrmlist);
        EXPECT_EQ(drawn(rig, "ListView1 st1"), "\nListView1:\nst1: [][][][0 hosts][]\n");
    }
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

// KEEP(export-always-adds-txt)
TEST(HostListFiles, ExportWritesNamesUnderTheChosenNameAndTxt) {
    Rig rig;
    rig.run(exporthostlist);
    EXPECT_EQ(rig.console.Form1.st1.text(1), "Populate the hosts for exporting...");
    EXPECT_TRUE(rig.dialogs.choices.empty());

    rig.list_hosts({"PC1", "", "\\\\PC2"});
    rig.console.Form1.ListView1.row(1).set_report_icon(1, 8);
    rig.dialogs.choose_file_next("/list.txt");
    rig.run(exporthostlist);
    EXPECT_EQ(rig.files.names(), "/list.txt.txt\n");
    EXPECT_EQ(rig.files.bytes("/list.txt.txt"), "PC1\r\n\r\n\\\\PC2\r\n");
    EXPECT_EQ(rig.console.Form1.st1.text(1), "Hosts list exported...");
    EXPECT_EQ(rig.dialogs.choices.at(0).title, "Save to..");
    EXPECT_EQ(rig.dialogs.choices.at(0).purpose, FilePurpose::Save);
    EXPECT_TRUE(rig.dialogs.messages.empty());

    rig.dialogs.choose_file_next("");
    rig.run(exporthostlist);
    EXPECT_EQ(rig.console.Form1.st1.text(1), "");
}

TEST(HostListFiles, ExportReplacesAFileOnlyAfterAYes) {
    const std::string old = "old and much longer than the new content";
    for (const auto& [answer, content, said] :
         {std::tuple(MessageAnswer::No, old.c_str(), ""),
          std::tuple(MessageAnswer::Yes, "PC1\r\n", "Hosts list exported...")}) {
        Rig rig;
        rig.list_hosts({"PC1"});
        rig.files.put("/list.txt", old);
        rig.dialogs.choose_file_next("/list");
        rig.dialogs.answer_next(answer);
        rig.run(exporthostlist);
        EXPECT_EQ(rig.files.bytes("/list.txt"), content);
        EXPECT_EQ(rig.console.Form1.st1.text(1), said);
        EXPECT_EQ(rig.dialogs.messages.at(0).text, "/list.txt is there already. Replace it?");
    }
}

// KEEP(export-always-reports-success)
TEST(HostListFiles, ExportGoesOnOverEveryFailure) {
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Close}) {
        Rig rig;
        rig.list_hosts({"PC1", "PC2"});
        rig.files.fail_next(step, "", "refused");
        rig.dialogs.choose_file_next("/list");
        rig.run(exporthostlist);
        EXPECT_FALSE(rig.program.ended);
        EXPECT_EQ(rig.console.Form1.st1.text(1), "Hosts list exported...");
        if (step == FileStep::Open) {
            EXPECT_EQ(rig.files.names(), "");
        } else {
            EXPECT_THAT(rig.files.bytes("/list.txt"), testing::EndsWith("PC2\r\n"));
        }
        EXPECT_EQ(rig.files.open_files(), 0);
    }
}

TEST(BrowseForFile, ReadsItsListOfFilters) {
    Rig rig;
    const std::pair<const char*, const char*> lists[] = {
        {"", "All Files (*.*)=*.*;"},
        {"Text|*.txt", "Text=*.txt;All Files (*.*)=*.*;"},
        {"Text;*.txt|Logs|*.log;", "Text=*.txt;Logs=*.log;All Files (*.*)=*.*;"}};
    for (const auto& [list, filters] : lists) {
        rig.dialogs.choose_file_next("/chosen");
        EXPECT_EQ(BrowseForFile(rig.console, FilePurpose::Open, "c:\\", list, "Title"), "/chosen");
        EXPECT_EQ(rig.dialogs.choices.back().filters, filters);
    }
}

TEST(PreAuditedHosts, ComeFromLogsThatAreNotEmpty) {
    Rig rig;
    rig.list_hosts({"OLD"});
    const std::pair<const char*, const char*> files[] = {
        {"pc1_system.log", "x"},     {"PC2_system.log", "x"},
        {"PC1_security.log", "x"},   {"Pc1_APPLICATION.LOG", "x"},
        {"PC3_system.log", ""},      {"PC3_security.log", "x"},
        {"PC4_system.log", ""},      {"PC4_security.log", ""},
        {"notes.log", "x"},          {"a_system.log_security.log", "x"},
        {"notes.txt", "x"},          {"sub/PC5_system.log", "x"},
        {"B\xDCRO_system.log", "x"}, {"b\xFCro_security.log", "x"}};
    for (const auto& [name, bytes] : files) rig.files.put(std::string("/app/Data/") + name, bytes);
    rig.run(LoadPreAuditedHosts);
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
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
    Rig rig;
    rig.list_hosts({"OLD"});
    EXPECT_THROW(LoadPreAuditedHosts(rig.console), RuntimeError);
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 0);
    EXPECT_EQ(rig.console.Form1.st1.text(4), "");
    rig.files.make_folders("/app/Data");
    rig.run(LoadPreAuditedHosts);
    EXPECT_EQ(rig.console.Form1.st1.text(4), "0 hosts");
}

}  // namespace
}  // namespace tessarine
