#include "report/html_page.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/golden.h"
#include "fakes/rig.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

using fakes::golden;
using fakes::Rig;

constexpr const char* kPage = "/app/tempop.html";

void add(ListControl& table, const std::string& line) {
    table.add_record_row(EventRecord(line).text(), 4);
}

// KEEP(page-texts-go-unescaped)
TEST(HtmlPage, ShowsTheTableByteForByte) {
    Rig rig;
    ListControl& table = rig.console.Form1.SystemList;
    for (const char* line : {
             "Error|11/30/2004|11:59:59 PM|Disk|7|SYSTEM|PC1|The device has a bad block.~",
             "Warning|11/30/2004|11:59:58 PM|Service Control Manager|7036||PC1|one~two~~three",
             "Information|1/1/1980||||||",
             "|||||||",
             "Fehler|30.11.2004|23:59:59|Dr\xFC"
             "cker|10|M\xDCLLER|PC2|Gr\xF6\xDF"
             "e \x80 5",
             "Error|d|t|<b>Source~</b>|1&2|\"u~\"|'c'|</table><script>alert(1)</script>&nbsp;",
             "Error|d|t|s|4625 |u|c|m with 'quotes' and \"more\"",
             "Error|d|t|s| 4625|u|c|\ttab\x01 and \x7F",
             "Error|d|t|s|1|u|c|a | bar and what is after it",
             "Error|d|t|s|1|u|c|a 100 % ${x} \\ %s",
         })
        add(table, line);
    add(table, "Error|d|t|s|1|u|c|" + std::string(300, 'm') + "~" + std::string(300, 'M'));
    // A row that grew after its columns.
    add(table, "Error|d|t|s|1|u|c|grown");
    table.last_row().add_sub_item("after the columns");
    rig.console.Form1.lblselectedTab.caption = " System Log  ";
    rig.run(print_current_page);
    EXPECT_EQ(rig.files.bytes(kPage), golden("page.html"));
    EXPECT_EQ(rig.shell.opened, std::vector<std::string>{kPage});
}

TEST(HtmlPage, IsOfTheTableOnTop) {
    Rig rig;
    MainForm& form = rig.console.Form1;
    add(form.SystemList, "Error|d|t|s|1|u|c|of the system");
    add(form.SecurityList, "Audit success|d|t|s|1|u|c|of the audit");
    form.lblselectedTab.caption = "Analysis Summary";
    rig.run(print_current_page);
    EXPECT_TRUE(rig.shell.opened.empty());
    EXPECT_FALSE(rig.files.file_exists(kPage));
    form.lblselectedTab.caption = " SECURITY LOG  ";
    rig.run(print_current_page);
    const std::string page = rig.files.bytes(kPage);
    EXPECT_NE(page.find("<td> SECURITY LOG  </td>"), std::string::npos);
    EXPECT_NE(page.find("of the audit"), std::string::npos);
    EXPECT_EQ(page.find("of the system"), std::string::npos);
}

// KEEP(long-pages-fail-after-their-head)
TEST(HtmlPage, OfMoreThan32767RowsHasItsHeadAlone) {
    Rig rig;
    ListControl& table = rig.console.Form1.SystemList;
    for (int i = 0; i < 32'767; ++i) add(table, "Error|d|t|s|1|u|c|m");
    ExportToHtml(rig.console, table);
    const std::string page = rig.files.bytes(kPage);
    EXPECT_TRUE(page.ends_with("</a><p><p></HTML>\r\n"));
    add(table, "Error|d|t|s|1|u|c|m");
    EXPECT_THROW(ExportToHtml(rig.console, table), RuntimeError);
    EXPECT_EQ(rig.files.bytes(kPage), page.substr(0, page.find("<tr class='light'")));
}

TEST(HtmlPage, FailsAtAShortRowAndAtAFullDisk) {
    Rig rig;
    ListControl& table = rig.console.Form1.SystemList;
    const auto page_fails = [&] {
        EXPECT_THROW(ExportToHtml(rig.console, table), RuntimeError);
        return rig.files.bytes(kPage);
    };
    ListControl::Row row = table.add_row("Error", 4);
    for (const char* field : {"d", "t", "s", "1", "u"}) row.add_sub_item(field);
    const std::string head = page_fails();
    row.add_sub_item("c");
    EXPECT_EQ(page_fails(), head +
                                "<tr class='light'  ><td>Error</td><td>c</td><td></td>"
                                "<td>d t</td><td>s</td><td>1</td><td>u</td></tr>\r\n");
    rig.files.fail_next(fakes::FileStep::Close, kPage, "The disk is full");
    table.clear();
    EXPECT_THROW(ExportToHtml(rig.console, table), RuntimeError);
}

TEST(DummyPage, AsksForPatienceOnce) {
    Rig rig;
    DummyHtml(rig.console);
    EXPECT_EQ(rig.files.bytes("/app/temp.html"), "<HTML><center>Please Wait</center></html>\r\n");
    rig.files.put("/app/temp.html", "another");
    DummyHtml(rig.console);
    EXPECT_EQ(rig.files.bytes("/app/temp.html"), "another");
}

}  // namespace
}  // namespace tessarine
